#pragma once
#include "gfx/AlphaPulse.h"
#include "gfx/Sprites.h"
#include "math/Vector.h"
#include "platform/interfaces/RenderDevice.h"

#include <array>
#include <functional>
#include <list>
#include <memory>
#include <vector>

class CBall;
class CLevel;
class CCurveLines;
struct CLineVertex;

enum
{
    SCREEN_MAIN_MENU = 14,
    SCREEN_SINGLE_PLAYER = 15,
    SCREEN_LOBBY = 16,
    SCREEN_CONNECT = 17,
    SCREEN_SPLINE_EDITOR = 18,
    SCREEN_OPTIONS = 19,
    SCREEN_RESERVED = 20,
    SCREEN_PLAY = 21,
    SCREEN_CREDITS = 22,
    SCREEN_LOGO = 23,
    SCREEN_RESULTS = 24,
};

// What the mouse points at on a menu screen: the menu frame writes it while it draws, a click reads it.
enum
{
    HOT_NOTHING = 5,
    HOT_SINGLE_PLAYER = 6,
    HOT_MULTI_PLAYER = 7,
    HOT_JOIN = 8,
    HOT_HOST = 9,
    HOT_OPTIONS = 11,
    HOT_QUIT = 12,
    HOT_RETURN = 13,
    HOT_CREDITS = 14,
    HOT_START = 16,
    HOT_SCROLL_UP = 19,
    HOT_SCROLL_DOWN = 20,
};

// The lobby shows this many rows of the track list; the arrows scroll it only when it holds more.
constexpr uint32_t TRACK_LIST_ROWS = 16;
constexpr char BACKGROUND_FOLDER[] = "data\\hud\\images\\"; // where a level's background picture is looked for
// A volume slider's left edge stands this far to the right of the screen's edge at volume 0.
constexpr int32_t SLIDER_ORIGIN_X = 355;

// A list of lines in one vertex buffer, two vertices to a line.
struct CLineSegmentSet
{
    std::unique_ptr<IVertexBuffer> m_pVertexBuffer;
    uint32_t m_uiNumLines = 0;
};

// Everything on the screen. It owns the device's objects (the sphere, the pictures, the line sets), runs the
// menu frame and the play frame, and holds the camera, which is the player's gun sight as well: a shot
// leaves from the point looked at, along the line of sight.
class CGraphicsEngine
{
public:
    static constexpr float NEAR_PLANE = 0.1f;
    static constexpr float FAR_PLANE = 750.0f;
    static constexpr uint32_t LIGHT_INDEX = 2;
    static constexpr uint32_t MENU_CLEAR_COLOUR = 0xFFFFFFFF;
    static constexpr uint32_t PLAY_CLEAR_COLOUR = 0xFF006478;

    CGraphicsEngine() = default;
    ~CGraphicsEngine();
    CGraphicsEngine(const CGraphicsEngine&) = delete;
    CGraphicsEngine& operator=(const CGraphicsEngine&) = delete;

    // Opens the device and sets up everything drawn with it; false when no device could be had.
    bool Init();
    // Lets go of every device object. Safe to run again: what was released is cleared.
    void ReleaseResources();
    void RenderMenuFrame();
    void RenderPlayFrame();
    // Null for a colour of 6 or more. A powerup ball gets a copy of its colour with the pulsing alpha.
    const CMaterial* GetBallMaterial(uint8_t ucColour, bool bPowerup);
    std::unique_ptr<IVertexBuffer> CreateVertexBuffer(uint32_t uiLength, uint32_t uiFVF);
    // Copies the data into the buffer, cut at the buffer's end. A buffer that is missing or won't lock gets the
    // caller's error text and false.
    bool FillVertexBuffer(IVertexBuffer* pBuffer, const void* pData, uint32_t uiLength,
                          const char* pLockError = "ERROR: Failed to Lock Vertex Buffer, couldn't copy Vertex Data");

    // The 2D layer.
    void LoadImage(const char* pFileName, CImage& Image);
    void LoadImages();
    void DrawSprite(CSprite& Sprite);
    void DrawCursor();
    void LoadBackground(const char* pName);
    void DrawBackground();
    // The pictures a screen points its sprites at.
    CImage* NormalImage(ESprite Sprite) const { return m_apNormalImages[Sprite]; }
    CImage* OverImage(ESprite Sprite) const { return m_apOverImages[Sprite]; }
    CImage* BallIcon(uint8_t ucColour) { return &m_aImages[m_uiFirstBallIcon + ucColour % 6]; }
    CImage* Face(uint32_t uiFace) { return &m_aImages[m_uiFirstFace + uiFace % NUM_FACES]; }

    // The screens of the menu frame, one procedure each; the results screen ends with its key test.
    void DrawMainMenu();
    void DrawSinglePlayerMenu();
    void DrawLobby();
    void DrawConnectScreen();
    void DrawOptionsScreen();
    void DrawCreditsScreen();
    void DrawLogoScreen();
    void DrawResultsScreen();

    // The play overlay: background, particles, panels, texts; and the danger faces it works out.
    void RenderHud();
    void UpdateDanger();
    void UpdatePlayerFaces();

    // The 3D world.
    void RenderWorld();
    void RenderAimBall();
    void DrawLines(IVertexBuffer* pVertexBuffer, uint32_t uiNumLines);
    void CreateLineSet(const std::vector<CLineVertex>& vVertices);
    void DrawLineSets();
    void SetupLineSets();
    // Puts a curve's lines into a vertex buffer of the device, when there is one.
    void CreateCurveBuffer(CCurveLines& Lines);

    // The camera. The turns take a positive amount whatever its sign, so that the name alone says the
    // direction.
    void TurnLeft(float fAmount);
    void TurnRight(float fAmount);
    void TurnUp(float fAmount);
    void TurnDown(float fAmount);
    void MoveForward(float fAmount);
    void MoveBack(float fAmount);
    void MoveLeft(float fAmount);
    void MoveRight(float fAmount);
    void MoveUp(float fAmount);
    void MoveDown(float fAmount);
    void UpdateLookAt();
    // Puts the eye on the camera path in use, looks along the angles and hands view and projection to the
    // device. Runs in each play frame.
    void SetupCamera(float fNear, float fFar);

    CPoint3 m_vEye{0.0f, 0.0f, 0.0f};
    CPoint3 m_vLookAt{0.0f, 0.0f, 0.0f}; // 10 units ahead of the eye; worked out in each play frame
    float m_fYaw = 0.0f;                 // degrees about y; 0 looks along +z, growing turns towards +x
    float m_fPitch = 0.0f;               // degrees; growing values look down; within -89 and 89
    std::list<std::unique_ptr<CLineSegmentSet>> m_lstLineSets;
    int m_nScreenState = 0;
    int m_nHotSpot = 0;
    int m_nPrevHotSpot = 0;
    uint32_t m_nSelectedTrack = 0;
    uint32_t m_nHighlightRow = 0;
    bool m_bHighlightVisible = false;
    uint32_t m_nFirstVisibleTrack = 0;
    IRenderDevice* m_pDevice = nullptr; // null until Init: then neither frame draws anything
    std::unique_ptr<IVertexBuffer> m_pBackgroundVB;
    std::unique_ptr<ITexture> m_pBackgroundTexture;
    CMatrixData m_matProjection{};
    CMatrixData m_matView{};
    CAlphaPulse m_Pulse;
    std::unique_ptr<IMesh> m_pSphereMesh;
    std::array<CMaterial, 6> m_aMaterials{};
    CMaterial m_PulseMaterial;
    std::array<CImage, MAX_IMAGES> m_aImages{};
    std::array<CSprite, MAX_SPRITES> m_aSprites{};

    // Where the device comes from: the game's window gives the real one, tests and tools a recording one.
    std::function<IRenderDevice*()> m_fnOpenDevice;
    CLevel* m_pLevel = nullptr; // the level drawn, and whose camera path the eye rides

private:
    void SetupRenderStates();
    void SetupMaterials();
    void SetupLight();
    void DrawScreen();
    void DrawBall(const CBall& Ball);
    void DrawSphereAt(const CPoint3& Position, float fScale, const CMaterial& Material);
    CVector3 WalkForward() const;

    std::array<CImage*, MAX_SPRITES> m_apNormalImages{};
    std::array<CImage*, MAX_SPRITES> m_apOverImages{};
    uint32_t m_uiFirstBallIcon = 0;
    uint32_t m_uiFirstFace = 0;
};

// The view and projection matrices of a left-handed world, as the game was first drawn with.
CMatrixData PerspectiveFovLH(float fFovY, float fAspect, float fNear, float fFar);
CMatrixData LookAtLH(const CPoint3& Eye, const CPoint3& At, const CVector3& Up);
// Scaling by s in all axes, then moving to p: the world matrix of a ball.
CMatrixData ScaleAndTranslate(float fScale, const CPoint3& p);
