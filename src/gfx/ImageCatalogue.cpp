#include "gfx/GraphicsEngine.h"

#include "input/Input.h"
#include "platform/interfaces/ErrorBox.h"

#include <string>

namespace
{
constexpr char MENU_FOLDER[] = "data\\menus\\images\\";
constexpr char HUD_FOLDER[] = "data\\hud\\images\\";
constexpr uint32_t UNSET = 0;

// A row of the sprite table: its pictures (a name beginning "hud\" lies in the HUD's folder), its place and
// the rectangle the mouse can touch.
struct CSpriteRow
{
    ESprite m_Sprite;
    const char* m_pNormal; // null: no picture, or one shared with other sprites (see below)
    const char* m_pOver;
    uint32_t m_nX, m_nY, m_nWidth, m_nHeight;
};

const CSpriteRow SPRITE_TABLE[] = {
    {SPR_CURSOR, "cursor.png", nullptr, UNSET, UNSET, UNSET, UNSET},
    {SPR_CHAT_BOX, "gray_box.png", nullptr, 43, 294, UNSET, UNSET},
    {SPR_MAIN_BACK, "Main_Menu.png", nullptr, 0, 0, UNSET, UNSET},
    {SPR_MAIN_SINGLE, "Single_Player1.png", "Single_Player2.png", 268, 280, 244, 37},
    {SPR_MAIN_MULTI, "Multi_Player1.png", "Multi_Player2.png", 268, 335, 244, 37},
    {SPR_MAIN_EDITOR, "Spline_Editor1.png", "Spline_Editor2.png", 268, 390, UNSET, UNSET},
    {SPR_MAIN_OPTIONS, "Options1.png", "Options2.png", 314, 390, 152, 37},
    {SPR_MAIN_QUIT, "Quit1.png", "Quit2.png", 348, 445, 85, 37},
    {SPR_MAIN_CREDITS, "credits1.png", "credits2.png", 660, 573, 140, 27},
    {SPR_SINGLE_BACK, "single_player_menu.png", nullptr, 0, 0, UNSET, UNSET},
    {SPR_SINGLE_RETURN, "return_to_main1.png", "return_to_main2.png", 440, 20, 343, 33},
    {SPR_SINGLE_START, "start1.png", "start2.png", 603, 494, 173, 78},
    {SPR_LOBBY_BACK, "multi_player_menu.png", nullptr, 0, 0, UNSET, UNSET},
    {SPR_LOBBY_RETURN, "return_to_main1.png", "return_to_main2.png", 440, 20, 343, 33},
    {SPR_LOBBY_START, "start1.png", "start2.png", 603, 494, 173, 78},
    {SPR_EDITOR_BACK, "spline_editor_menu.png", nullptr, 0, 0, UNSET, UNSET},
    {SPR_EDITOR_RETURN, "return_to_main1.png", "return_to_main2.png", 440, 20, UNSET, UNSET},
    {SPR_CREDITS_BACK, "menu_credits.png", nullptr, 0, 0, UNSET, UNSET},
    {SPR_OPTIONS_BACK, "Options_Menu.png", nullptr, 0, 0, UNSET, UNSET},
    {SPR_OPTIONS_RETURN, "return_to_main1.png", "return_to_main2.png", 440, 20, 343, 33},
    {SPR_CONNECT_BACK, "connect_menu.png", nullptr, 0, 0, UNSET, UNSET},
    {SPR_CONNECT_CLIENT, "connect_client1.png", "connect_client2.png", 425, 203, 291, 38},
    {SPR_CONNECT_SERVER, "connect_server1.png", "connect_server2.png", 250, 383, 291, 38},
    {SPR_CONNECT_RETURN, "return_to_main1.png", "return_to_main2.png", 440, 20, 343, 33},
    {SPR_HUD_POWERUPS, "hud\\power_ups.png", nullptr, 10, 10, UNSET, UNSET},
    {SPR_HUD_SCORE, "hud\\score.png", nullptr, 500, 10, UNSET, UNSET},
    {SPR_HUD_TRACK, "hud\\linear_track.png", nullptr, 144, 550, UNSET, UNSET},
    {SPR_SLIDER_EFFECTS, "slide_bar.png", nullptr, 355, 180, UNSET, UNSET},
    {SPR_SLIDER_MUSIC, "slide_bar.png", nullptr, 355, 254, UNSET, UNSET},
    {SPR_HUD_NEXT, nullptr, nullptr, 555, 47, UNSET, UNSET},
    {SPR_WIN, "win.png", nullptr, 0, 0, UNSET, UNSET},
    {SPR_LOSE, "lose.png", nullptr, 0, 0, UNSET, UNSET},
    {SPR_HUD_PROGRESS, nullptr, nullptr, 144, 550, UNSET, UNSET},
    {SPR_HUD_FACE1, nullptr, nullptr, 125, 510, UNSET, UNSET},
    {SPR_HUD_FACE2, nullptr, nullptr, 205, 510, UNSET, UNSET},
    {SPR_HUD_FACE3, nullptr, nullptr, 285, 510, UNSET, UNSET},
    {SPR_HUD_FACE4, nullptr, nullptr, 365, 510, UNSET, UNSET},
    {SPR_HUD_FACE5, nullptr, nullptr, 445, 510, UNSET, UNSET},
    {SPR_HUD_FACE6, nullptr, nullptr, 525, 510, UNSET, UNSET},
    {SPR_HUD_FACE7, nullptr, nullptr, 605, 510, UNSET, UNSET},
    {SPR_HUD_FACE8, nullptr, nullptr, 685, 510, UNSET, UNSET},
    {SPR_LOGO, "kestrun.png", nullptr, 0, 0, UNSET, UNSET},
    {SPR_LIST_LEFT, "arrow_left.png", "arrow_left2.png", 385, 500, UNSET, UNSET},
    {SPR_LIST_RIGHT, "arrow_right.png", "arrow_right2.png", 405, 500, UNSET, UNSET},
    {SPR_LIST_UP, "arrow_up1.png", "arrow_up2.png", 212, 70, 16, 16},
    {SPR_LIST_DOWN, "arrow_down1.png", "arrow_down2.png", 212, 351, 16, 16},
    {SPR_LIST_HIGHLIGHT, "highlight.png", nullptr, 51, UNSET, UNSET, UNSET},
    {SPR_LIST_SCROLL, "scroll.png", nullptr, 212, 70, UNSET, UNSET},
    {SPR_LIST_AREA, nullptr, nullptr, 51, 70, 161, 288},
};
static_assert(sizeof(SPRITE_TABLE) / sizeof(SPRITE_TABLE[0]) == SPRITE_COUNT, "one row for each sprite");

// The next-ball icon shows one of these by the colour of the next shot; the progress marker and the
// players' faces one of the four faces.
const char* const BALL_ICONS[6] = {"hud\\red.png",    "hud\\green.png",  "hud\\blue.png",
                                   "hud\\yellow.png", "hud\\orange.png", "hud\\purple.png"};
const char* const FACES[NUM_FACES] = {"hud\\face1.png", "hud\\face2.png", "hud\\face3.png", "hud\\face4.png"};
constexpr uint8_t FIRST_NEXT_BALL = 2; // blue

std::string CataloguePath(const char* pName)
{
    const std::string Name(pName);
    if(Name.rfind("hud\\", 0) == 0)
        return HUD_FOLDER + Name.substr(4);
    return MENU_FOLDER + Name;
}
} // namespace

void CGraphicsEngine::LoadImage(const char* pFileName, CImage& Image)
{
    Image.m_pTexture = m_pDevice->CreateTextureFromFile(pFileName);
    if(!Image.m_pTexture)
        ShowError("ERROR: Failed to load Texture");
    // A picture whose size can't be read is taken as empty, and so draws nothing.
    if(!m_pDevice->GetImageInfoFromFile(pFileName, Image.m_nWidth, Image.m_nHeight))
    {
        ShowError("ERROR: Failed to get Image Information");
        Image.m_nWidth = Image.m_nHeight = 0;
    }
}

// Every picture is loaded once for each slot that shows it, before the first frame; the buttons that share
// pictures each have their own pair of slots.
void CGraphicsEngine::LoadImages()
{
    uint32_t uiSlot = 0;
    auto Load = [this, &uiSlot](const char* pName) {
        CImage& Image = m_aImages[uiSlot++];
        LoadImage(CataloguePath(pName).c_str(), Image);
        return &Image;
    };
    for(const CSpriteRow& Row : SPRITE_TABLE)
    {
        CSprite& Sprite = m_aSprites[Row.m_Sprite];
        Sprite.m_nX = Row.m_nX;
        Sprite.m_nY = Row.m_nY;
        Sprite.m_nWidth = Row.m_nWidth;
        Sprite.m_nHeight = Row.m_nHeight;
        m_apNormalImages[Row.m_Sprite] = Row.m_pNormal ? Load(Row.m_pNormal) : nullptr;
        m_apOverImages[Row.m_Sprite] = Row.m_pOver ? Load(Row.m_pOver) : nullptr;
    }
    m_uiFirstBallIcon = uiSlot;
    for(const char* pIcon : BALL_ICONS)
        Load(pIcon);
    m_uiFirstFace = uiSlot;
    for(const char* pFace : FACES)
        Load(pFace);
    m_apNormalImages[SPR_HUD_NEXT] = BallIcon(FIRST_NEXT_BALL);
    for(int iSprite = SPR_HUD_PROGRESS; iSprite <= SPR_HUD_FACE8; iSprite++)
        m_apNormalImages[iSprite] = Face(0);
    for(int iSprite = 0; iSprite < SPRITE_COUNT; iSprite++)
        m_aSprites[iSprite].m_pImage = m_apNormalImages[iSprite];
    m_aSprites[SPR_CURSOR].m_nX = static_cast<uint32_t>(g_fMouseX);
    m_aSprites[SPR_CURSOR].m_nY = static_cast<uint32_t>(g_fMouseY);
    m_nScreenState = SCREEN_LOGO;
}
