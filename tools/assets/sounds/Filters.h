#pragma once

// One-pole smoothing: a gentle 6 dB per octave low-pass, also the basis of the high-pass below.
class COnePole
{
public:
    explicit COnePole(double dCutoffHz = 1000.0) { SetCutoff(dCutoffHz); }
    void SetCutoff(double dCutoffHz);
    float Low(float fInput)
    {
        m_fState += m_fCoefficient * (fInput - m_fState);
        return m_fState;
    }
    float High(float fInput) { return fInput - Low(fInput); }

private:
    float m_fCoefficient = 0.0f;
    float m_fState = 0.0f;
};

// A state-variable filter in its trapezoidal form, which stays stable while its cutoff sweeps, so envelopes can
// open and close it during a note.
class CSvf
{
public:
    struct Output
    {
        float m_fLow;
        float m_fBand;
        float m_fHigh;
    };

    CSvf(double dCutoffHz, double dQ) { Set(dCutoffHz, dQ); }
    void Set(double dCutoffHz, double dQ);
    Output Process(float fInput);

private:
    double m_dA1 = 0.0;
    double m_dA2 = 0.0;
    double m_dA3 = 0.0;
    double m_dK = 1.0;
    double m_dState1 = 0.0;
    double m_dState2 = 0.0;
};
