target_sources(trelvane_core PRIVATE sound/FolderSearch.cpp)
