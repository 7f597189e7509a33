// Every picture the game loads, by the path it has below the data folder, with the code that draws it.
#pragma once

#include "Canvas.h"

#include <functional>
#include <string>
#include <vector>

namespace art {

struct Picture {
    std::string path; // below the data folder, with '/' between folders: "menus/images/cursor.png"
    std::function<Canvas()> draw;
};

using Pictures = std::vector<Picture>;

// The game's two picture folders.
inline Picture inMenus(const std::string &name, std::function<Canvas()> draw) { return {"menus/images/" + name, std::move(draw)}; }
inline Picture inHud(const std::string &name, std::function<Canvas()> draw) { return {"hud/images/" + name, std::move(draw)}; }

// The groups, each drawn by its own file.
Pictures buttonPictures();     // every two-state button of the menus
Pictures smallMenuPictures();  // cursor, list arrows, highlight, scroll bar, slider knob, chat box
Pictures mainScreens();        // main menu, single-player menu, spline editor
Pictures networkScreens();     // lobby and connect screen
Pictures settingsScreens();    // options and credits
Pictures resultPictures();     // won and lost
Pictures logoPictures();       // the start-up picture
Pictures hudPictures();        // the play overlay's panels and ball icons
Pictures facePictures();       // the four danger faces
Pictures flarePictures();      // the particle flare
Pictures levelBackgrounds();   // pictures behind the levels

// All of them, in a fixed order.
Pictures catalogue();

} // namespace art
