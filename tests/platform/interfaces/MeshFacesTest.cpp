#include "platform/interfaces/MeshFaces.h"
#include "gfx/GraphicsEngine.h"
#include "platform/interfaces/GameMatrix.h"

#include <gtest/gtest.h>

#include <random>

namespace
{
CMatrixData Times(const CMatrixData& a, const CMatrixData& b)
{
    CMatrixData r{};
    for(int i = 0; i < 4; i++)
        for(int j = 0; j < 4; j++)
            for(int k = 0; k < 4; k++)
                r[i * 4 + j] += a[i * 4 + k] * b[k * 4 + j];
    return r;
}

// Where a mesh point lands on screen, x right and y up, as the projection and the perspective divide put it.
CPoint2 OnScreen(const CMeshVertex& v, const CMatrixData& m)
{
    const std::array<float, 4> Clip = Transformed(m, {v.x, v.y, v.z, 1.0f});
    return CPoint2(Clip[0] / Clip[3], Clip[1] / Clip[3]);
}

// Twice the triangle's area on screen, positive when its corners turn anticlockwise there: a back face.
float Winding(const CSphereGeometry& Sphere, size_t uTriangle, const CMatrixData& ToScreen)
{
    const CPoint2 a = OnScreen(Sphere.m_vVertices[Sphere.m_vIndices[uTriangle * 3]], ToScreen);
    const CPoint2 b = OnScreen(Sphere.m_vVertices[Sphere.m_vIndices[uTriangle * 3 + 1]], ToScreen);
    const CPoint2 c = OnScreen(Sphere.m_vVertices[Sphere.m_vIndices[uTriangle * 3 + 2]], ToScreen);
    return (b.x() - a.x()) * (c.y() - a.y()) - (c.x() - a.x()) * (b.y() - a.y());
}
} // namespace

// The batch leaves out exactly the triangles the driver would cull: those wound anticlockwise on screen, for
// balls anywhere in view, big or small, and for a world matrix that turns and stretches the mesh.
TEST(MeshFaces, BallTrianglesLeftOutAreTheBackFacesOnScreen)
{
    const CSphereGeometry Sphere = BuildSphere(1.0f, 10, 10);
    const CMeshFaces Faces(Sphere);
    ASSERT_EQ(Faces.Count(), 180u);
    const CMatrixData Projection = PerspectiveFovLH(0.785f, 800.0f / 600.0f, 0.1f, 750.0f);
    const CMatrixData View = LookAtLH(CPoint3(3, 40, -30), CPoint3(0, 0, 5), CVector3(0, 1, 0));
    std::mt19937 Random(7);
    std::uniform_real_distribution<float> Along(-25.0f, 25.0f), Size(0.3f, 3.0f);
    std::vector<CMatrixData> vWorlds = {{0.9f, 0.52f, 0, 0, -0.3f, 0.52f, 0, 0, 0, 0, 0.7f, 0, 1.6f, -0.6f, 0.3f, 1}};
    for(int i = 0; i < 200; i++)
        vWorlds.push_back(ScaleAndTranslate(Size(Random), CPoint3(Along(Random), Along(Random) * 0.2f, Along(Random))));
    size_t uLeftOut = 0;
    for(const CMatrixData& World : vWorlds)
    {
        const std::optional<CVector3> Eye = EyeInMesh(World, View, Projection);
        ASSERT_TRUE(Eye.has_value());
        const CMatrixData ToScreen = Times(Times(World, View), Projection);
        for(size_t t = 0; t < Faces.Count(); t++)
        {
            const float fWinding = Winding(Sphere, t, ToScreen);
            if(std::abs(fWinding) < 1e-7f)
                continue; // edge on: either answer draws nothing
            EXPECT_EQ(Faces.MaySee(*Eye, t), fWinding < 0.0f) << t;
            uLeftOut += !Faces.MaySee(*Eye, t);
        }
    }
    EXPECT_GT(uLeftOut, vWorlds.size() * 80);
}

// Mirrored worlds and views, projections from elsewhere than the eye and parallel ones wind differently: the
// batch then leaves the culling to the driver.
TEST(MeshFaces, BallTrianglesAreAllKeptWhenTheMatricesMirrorOrDoNotProjectFromTheEye)
{
    const CMatrixData Projection = PerspectiveFovLH(0.785f, 800.0f / 600.0f, 0.1f, 750.0f);
    const CMatrixData View = LookAtLH(CPoint3(0, 0, -10), CPoint3(0, 0, 0), CVector3(0, 1, 0));
    const CMatrixData World = ScaleAndTranslate(1.0f, CPoint3(0, 0, 0));
    EXPECT_TRUE(EyeInMesh(World, View, Projection).has_value());
    CMatrixData Mirror = World;
    Mirror[0] = -1.0f;
    EXPECT_FALSE(EyeInMesh(Mirror, View, Projection).has_value());
    EXPECT_FALSE(EyeInMesh(World, Mirror, Projection).has_value());
    CMatrixData Parallel = Projection;
    Parallel[11] = 0.0f;
    Parallel[15] = 1.0f;
    EXPECT_FALSE(EyeInMesh(World, View, Parallel).has_value());
    CMatrixData Shifted = Projection;
    Shifted[12] = 0.5f;
    EXPECT_FALSE(EyeInMesh(World, View, Shifted).has_value());
    EXPECT_FALSE(EyeInMesh(ScaleAndTranslate(0.0f, CPoint3(0, 0, 0)), View, Projection).has_value());
}
