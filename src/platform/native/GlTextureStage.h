#pragma once
#include "platform/interfaces/RenderDevice.h"

#include <array>

// Stage 0 of the device's texture blending, on GL's combiner: a colour and an alpha operation, each of one or
// two arguments. A stage without a texture reads an opaque white one, so the operations never change meaning.
class CGlTextureStage
{
public:
    void Set(ETextureStageState State, uint32_t uiValue) { m_auiStates[State] = uiValue; }
    // Sets the combiner of the active texture unit.
    void Apply() const;
    // Whether, reading an opaque white texture, the stage hands the diffuse colour and alpha on unchanged, as
    // it does with no texture at all.
    bool KeepsDiffuseOverWhite() const;

private:
    // The defaults of stage 0 on a new device.
    std::array<uint32_t, TEXTURE_STAGE_STATE_COUNT> m_auiStates{TOP_MODULATE,   TA_TEXTURE, TA_CURRENT,
                                                                TOP_SELECTARG1, TA_TEXTURE, TA_CURRENT};
};
