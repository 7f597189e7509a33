#pragma once
#include "math/Vector.h"
#include "platform/interfaces/RenderDevice.h"

#include <cstdint>
#include <list>
#include <memory>

struct CColourF
{
    float m_fR = 0.0f, m_fG = 0.0f, m_fB = 0.0f, m_fA = 0.0f;
};

class CParticle
{
public:
    CPoint3 m_vPosition;
    CVector3 m_vVelocity;     // units per second
    CVector3 m_vAcceleration; // not applied
    float m_fLifeTime = 0.0f; // seconds
    float m_fAge = 0.0f;
    CColourF m_Colour;
    CColourF m_ColourFade; // not used
    bool m_bAlive = true;
};

// A list of particles that start at one origin, drawn as point sprites; what a particle is and how it moves
// is the derived class's.
class CParticleSystemBase
{
public:
    virtual ~CParticleSystemBase() = default;
    virtual void Reset();
    // Makes the dynamic vertex buffer of m_uiVBSize vertices and loads the picture of a particle. False when
    // either fails: the particles are then not drawn, and nobody is told.
    virtual bool Init(IRenderDevice* pDevice, const char* pFileName);
    virtual void PreRender();
    // Sends the live particles to the device in batches of m_uiBatchSize points through the buffer.
    virtual void Render();
    virtual void PostRender();
    virtual void ResetParticle(CParticle& Particle) = 0;
    virtual void AddParticle();
    virtual void Update(float fSeconds) = 0;
    virtual void RemoveDeadParticles();

    void Setup(const CPoint3& Origin, uint32_t uiCount);
    bool IsDead() const;

    IRenderDevice* m_pDevice = nullptr; // given to Init
    CPoint3 m_vOrigin;
    float m_fSize = 0.0f;
    std::unique_ptr<ITexture> m_pTexture;
    std::unique_ptr<IVertexBuffer> m_pVB;
    std::list<CParticle> m_lstParticles; // dead ones too, until removed
    uint32_t m_uiVBSize = 0;
    uint32_t m_uiVBOffset = 0;
    uint32_t m_uiBatchSize = 0;
};

// The bursts of flares that fly out where a ball vanishes: 30 flares of random colour at 10 units a second,
// for two seconds each.
class CParticleSystem : public CParticleSystemBase
{
public:
    static constexpr uint32_t PARTICLES_PER_BURST = 30;

    void StartBurst(CPoint3 Position);
    void PreRender() override;
    void PostRender() override;
    void ResetParticle(CParticle& Particle) override;
    void Update(float fSeconds) override;
    // Draws the bursts in world coordinates on the device of the play frame. The buffer and the flare are
    // made at the first draw, so that the rules can start bursts where no device exists.
    void DrawParticles(IRenderDevice* pDevice);

    CPoint3 m_vBurstPosition;
    bool m_bActive = false; // a burst has live particles
};

// low + a random step of 0.0001 times (high - low); high itself is never reached.
float GetRandomFloat(float fLow, float fHigh);
