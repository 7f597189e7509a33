#pragma once
#include <string>

// The game reads everything below data/ in its working directory. An installed game keeps its data in
// share/trelvane/ beside its bin/ folder and always plays with that, wherever it is started from; a game run from
// its build reads data/ below the folder it is started in. Makes that folder the working directory; false, with
// the data folder it looked for, when there is none, so that the game says so once instead of failing on every
// file.
bool EnterDataFolder(std::string& MissingFolder);

// For the tools, which are given files by paths of the folder they are started in: data/ there comes first;
// without one they read an installed game's data where it lies, and the working folder stays.
void FindToolData();
