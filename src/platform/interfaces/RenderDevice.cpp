#include "platform/interfaces/RenderDevice.h"

uint64_t VerticesOf(EPrimitive Type, uint32_t uiPrimitives)
{
    if(uiPrimitives == 0)
        return 0;
    switch(Type)
    {
    case PT_LINELIST: return 2ull * uiPrimitives;
    case PT_TRIANGLELIST: return 3ull * uiPrimitives;
    case PT_TRIANGLESTRIP: return uiPrimitives + 2ull;
    default: return uiPrimitives;
    }
}
