#pragma once
#include "platform/interfaces/RenderDevice.h"

#include <cstdint>
#include <memory>

// A picture with the size its file has; quads are drawn at this size whatever the texture's own size is.
struct CImage
{
    std::unique_ptr<ITexture> m_pTexture; // null when the slot is empty or the load failed
    uint32_t m_nHeight = 0;
    uint32_t m_nWidth = 0;
};

// A 2D element: where a picture stands on the 800x600 screen and which rectangle of it the mouse can touch.
struct CSprite
{
    uint32_t m_nX = 0;
    uint32_t m_nY = 0;
    uint32_t m_nWidth = 0; // of the hot rectangle, not of the picture
    uint32_t m_nHeight = 0;
    std::unique_ptr<IVertexBuffer> m_pVB; // lives only while the sprite is drawn
    CImage* m_pImage = nullptr;           // what it shows now; null shows nothing
};

// The sprites by name, in the order of the sprite table.
enum ESprite
{
    SPR_CURSOR,
    SPR_CHAT_BOX,
    SPR_MAIN_BACK,
    SPR_MAIN_SINGLE,
    SPR_MAIN_MULTI,
    SPR_MAIN_EDITOR,
    SPR_MAIN_OPTIONS,
    SPR_MAIN_QUIT,
    SPR_MAIN_CREDITS,
    SPR_SINGLE_BACK,
    SPR_SINGLE_RETURN,
    SPR_SINGLE_START,
    SPR_LOBBY_BACK,
    SPR_LOBBY_RETURN,
    SPR_LOBBY_START,
    SPR_EDITOR_BACK,
    SPR_EDITOR_RETURN,
    SPR_CREDITS_BACK,
    SPR_OPTIONS_BACK,
    SPR_OPTIONS_RETURN,
    SPR_CONNECT_BACK,
    SPR_CONNECT_CLIENT,
    SPR_CONNECT_SERVER,
    SPR_CONNECT_RETURN,
    SPR_HUD_POWERUPS,
    SPR_HUD_SCORE,
    SPR_HUD_TRACK,
    SPR_SLIDER_EFFECTS,
    SPR_SLIDER_MUSIC,
    SPR_HUD_NEXT,
    SPR_WIN,
    SPR_LOSE,
    SPR_HUD_PROGRESS,
    SPR_HUD_FACE1,
    SPR_HUD_FACE2,
    SPR_HUD_FACE3,
    SPR_HUD_FACE4,
    SPR_HUD_FACE5,
    SPR_HUD_FACE6,
    SPR_HUD_FACE7,
    SPR_HUD_FACE8,
    SPR_LOGO,
    SPR_LIST_LEFT,
    SPR_LIST_RIGHT,
    SPR_LIST_UP,
    SPR_LIST_DOWN,
    SPR_LIST_HIGHLIGHT,
    SPR_LIST_SCROLL,
    SPR_LIST_AREA,
    SPRITE_COUNT
};

constexpr size_t MAX_IMAGES = 70;
constexpr size_t MAX_SPRITES = 52;
constexpr size_t NUM_FACES = 4;
static_assert(SPRITE_COUNT <= MAX_SPRITES, "the sprite table has room for 52 records");

// A vertex already in screen pixels, with its texture coordinates.
struct CScreenVertex
{
    float x, y, z, rhw;
    float u, v;
};
static_assert(sizeof(CScreenVertex) == 24, "a screen vertex is six 32-bit floats");
