#pragma once
#include "math/Vector.h"

#include <cstdint>
#include <list>

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

// A list of particles that start at one origin; what a particle is and how it moves is the derived class's.
class CParticleSystemBase
{
public:
    virtual ~CParticleSystemBase() = default;
    virtual void Reset();
    virtual void ResetParticle(CParticle& Particle) = 0;
    virtual void AddParticle();
    virtual void Update(float fSeconds) = 0;
    virtual void RemoveDeadParticles();

    void Setup(const CPoint3& Origin, uint32_t uiCount);
    bool IsDead() const;

    CPoint3 m_vOrigin;
    float m_fSize = 0.0f;
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
    void ResetParticle(CParticle& Particle) override;
    void Update(float fSeconds) override;

    CPoint3 m_vBurstPosition;
    bool m_bActive = false; // a burst has live particles
};

// low + a random step of 0.0001 times (high - low); high itself is never reached.
float GetRandomFloat(float fLow, float fHigh);
