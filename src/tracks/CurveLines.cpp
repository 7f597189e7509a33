#include "tracks/CurveLines.h"

#include "math/BSpline.h"
#include "platform/interfaces/ErrorBox.h"

#include <new>

CCurveLines& CCurveLines::operator=(CCurveLines Other) noexcept
{
    m_vVertices.swap(Other.m_vVertices);
    m_uiNumLines = Other.m_uiNumLines;
    m_pVertexBuffer.swap(Other.m_pVertexBuffer);
    return *this;
}

void CCurveLines::Release()
{
    std::vector<CLineVertex>().swap(m_vVertices);
    m_uiNumLines = 0;
    m_pVertexBuffer.reset();
}

void BuildLines(const CBSpline& Spline, CCurveLines& Lines)
{
    Lines.Release();
    if(Spline.m_vSamples.size() < 2)
        return;
    const uint32_t uiNumLines = Spline.m_uiNumSamples - 1;
    try
    {
        Lines.m_vVertices.reserve(2 * static_cast<size_t>(uiNumLines));
    }
    catch(const std::bad_alloc&)
    {
        ShowError("Couldn't Allocate Memory for Vertex Buffer");
        return;
    }
    for(size_t i = 1; i < Spline.m_vSamples.size(); i++)
    {
        for(const CPoint3& p : {Spline.m_vSamples[i - 1], Spline.m_vSamples[i]})
            Lines.m_vVertices.push_back(CLineVertex{p.x(), p.y(), p.z(), CURVE_LINE_COLOUR});
    }
    Lines.m_uiNumLines = uiNumLines;
}
