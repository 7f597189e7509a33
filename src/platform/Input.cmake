target_sources(trelvane_platform PRIVATE
  platform/SdlInput.cpp
  platform/ScancodeTable.cpp
)
