#include "gfx/ParticleSystem.h"

#include <cstdlib>

namespace
{
constexpr float PARTICLE_SPEED = 10.0f;
constexpr float PARTICLE_LIFE = 2.0f;
constexpr float POINT_SIZE = 5.0f;
constexpr uint32_t VB_CAPACITY = 128;
constexpr uint32_t BATCH_SIZE = 32;
} // namespace

float GetRandomFloat(float fLow, float fHigh)
{
    if(!(fLow < fHigh))
        return fLow;
    const float f = static_cast<float>(std::rand() % 10000) * 0.0001f;
    return fLow + f * (fHigh - fLow);
}

void CParticleSystemBase::Reset()
{
    for(CParticle& Particle : m_lstParticles)
        ResetParticle(Particle);
}

void CParticleSystemBase::AddParticle()
{
    CParticle Particle;
    ResetParticle(Particle);
    m_lstParticles.push_back(Particle);
}

void CParticleSystemBase::RemoveDeadParticles()
{
    m_lstParticles.remove_if([](const CParticle& Particle) { return !Particle.m_bAlive; });
}

void CParticleSystemBase::Setup(const CPoint3& Origin, uint32_t uiCount)
{
    m_vOrigin = Origin;
    m_fSize = POINT_SIZE;
    m_uiVBSize = VB_CAPACITY;
    m_uiVBOffset = 0;
    m_uiBatchSize = BATCH_SIZE;
    for(uint32_t i = 0; i < uiCount; i++)
        AddParticle();
}

bool CParticleSystemBase::IsDead() const
{
    for(const CParticle& Particle : m_lstParticles)
    {
        if(Particle.m_bAlive)
            return false;
    }
    return true;
}

void CParticleSystem::StartBurst(CPoint3 Position)
{
    m_vBurstPosition = Position;
    Setup(m_vBurstPosition, PARTICLES_PER_BURST);
    m_bActive = true;
}

void CParticleSystem::ResetParticle(CParticle& Particle)
{
    Particle.m_bAlive = true;
    Particle.m_vPosition = m_vOrigin;
    // Directions come from a cube, not a sphere; the rare zero vector keeps no direction rather than a NaN one.
    CVector3 vDirection;
    for(int i = 0; i < 3; i++)
        vDirection[i] = GetRandomFloat(-1.0f, 1.0f);
    if(vDirection.Length() > 0.0f)
        vDirection.Normalize();
    Particle.m_vVelocity = vDirection * PARTICLE_SPEED;
    Particle.m_Colour.m_fB = GetRandomFloat(0.0f, 1.0f);
    Particle.m_Colour.m_fG = GetRandomFloat(0.0f, 1.0f);
    Particle.m_Colour.m_fR = GetRandomFloat(0.0f, 1.0f);
    Particle.m_Colour.m_fA = 1.0f;
    Particle.m_fAge = 0.0f;
    Particle.m_fLifeTime = PARTICLE_LIFE;
}

void CParticleSystem::Update(float fSeconds)
{
    for(CParticle& Particle : m_lstParticles)
    {
        if(!Particle.m_bAlive)
            continue;
        Particle.m_vPosition += Particle.m_vVelocity * fSeconds;
        Particle.m_fAge += fSeconds;
        if(Particle.m_fAge > Particle.m_fLifeTime)
            Particle.m_bAlive = false;
    }
}
