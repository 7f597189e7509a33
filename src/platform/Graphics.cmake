target_sources(trelvane_platform PRIVATE
  platform/GlBackBuffer.cpp
  platform/GlDeviceStates.cpp
  platform/GlFont.cpp
  platform/GlFunctions.cpp
  platform/GlLighting.cpp
  platform/GlMesh.cpp
  platform/GlOverlay.cpp
  platform/GlPoints.cpp
  platform/GlRenderDevice.cpp
  platform/GlSphereBatch.cpp
  platform/GlSphereDraws.cpp
  platform/GlTexture.cpp
  platform/GlTextureStage.cpp
  platform/GlVertexFormat.cpp
)
