#include "platform/native/GlTextureStage.h"

#include <GL/gl.h>

namespace
{
// At stage 0 the current colour is the diffuse one; anything the device does not know reads as it too.
GLint SourceOf(uint32_t uiArgument)
{
    return uiArgument == TA_TEXTURE ? GL_TEXTURE : GL_PRIMARY_COLOR;
}

// One half of the combiner (colour or alpha). An operation the device does not know passes the diffuse colour
// on, as a disabled stage 0 does.
void ApplyOperation(GLenum eCombine, GLenum eSource0, GLenum eSource1, uint32_t uiOp, uint32_t uiArg1, uint32_t uiArg2)
{
    GLint iMode = GL_REPLACE;
    GLint iSource0 = GL_PRIMARY_COLOR;
    switch(uiOp)
    {
    case TOP_SELECTARG1: iSource0 = SourceOf(uiArg1); break;
    case TOP_SELECTARG2: iSource0 = SourceOf(uiArg2); break;
    case TOP_MODULATE:
        iMode = GL_MODULATE;
        iSource0 = SourceOf(uiArg1);
        glTexEnvi(GL_TEXTURE_ENV, eSource1, SourceOf(uiArg2));
        break;
    default: break;
    }
    glTexEnvi(GL_TEXTURE_ENV, eCombine, iMode);
    glTexEnvi(GL_TEXTURE_ENV, eSource0, iSource0);
}
// Whether one half of the stage gives the diffuse value when the texture reads as one. Anything but the texture
// reads as the diffuse value at stage 0.
bool KeepsDiffuse(uint32_t uiOp, uint32_t uiArg1, uint32_t uiArg2)
{
    switch(uiOp)
    {
    case TOP_SELECTARG1: return uiArg1 != TA_TEXTURE;
    case TOP_SELECTARG2: return uiArg2 != TA_TEXTURE;
    case TOP_MODULATE: return (uiArg1 == TA_TEXTURE) != (uiArg2 == TA_TEXTURE);
    default: return true;
    }
}
} // namespace

void CGlTextureStage::Apply() const
{
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_COMBINE);
    ApplyOperation(GL_COMBINE_RGB, GL_SRC0_RGB, GL_SRC1_RGB, m_auiStates[TSS_COLOROP], m_auiStates[TSS_COLORARG1],
                   m_auiStates[TSS_COLORARG2]);
    ApplyOperation(GL_COMBINE_ALPHA, GL_SRC0_ALPHA, GL_SRC1_ALPHA, m_auiStates[TSS_ALPHAOP], m_auiStates[TSS_ALPHAARG1],
                   m_auiStates[TSS_ALPHAARG2]);
}

bool CGlTextureStage::KeepsDiffuseOverWhite() const
{
    return KeepsDiffuse(m_auiStates[TSS_COLOROP], m_auiStates[TSS_COLORARG1], m_auiStates[TSS_COLORARG2]) &&
           KeepsDiffuse(m_auiStates[TSS_ALPHAOP], m_auiStates[TSS_ALPHAARG1], m_auiStates[TSS_ALPHAARG2]);
}
