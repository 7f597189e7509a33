#include "sounds/PieceStyle.h"

std::vector<PieceStyle> AllPieces()
{
    return {CalmPiece(), DrivingPiece(), DreamyPiece()};
}

Patch DrumPatch(float fLevel, float fPan, float fReverb, double dTune, double dDecay)
{
    Patch Sound;
    Sound.m_eEngine = Engine::Drum;
    Sound.m_fLevel = fLevel;
    Sound.m_fPan = fPan;
    Sound.m_fReverb = fReverb;
    Sound.m_dDrumTune = dTune;
    Sound.m_dDrumDecay = dDecay;
    return Sound;
}
