target_sources(trelvane_platform PRIVATE platform/SdlAudio.cpp)
