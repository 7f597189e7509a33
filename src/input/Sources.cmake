target_sources(trelvane_core PRIVATE
  input/Input.cpp
  platform/InputAccumulator.cpp
)
