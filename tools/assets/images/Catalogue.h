// Every picture the game loads, by the path it has below the data folder, with the code that draws it.
#pragma once

#include "Canvas.h"

#include <functional>
#include <string>
#include <vector>

namespace art
{
struct CPicture
{
    std::string m_Path; // below the data folder, with '/' between folders: "menus/images/cursor.png"
    std::function<CCanvas()> m_fnDraw;
};

using CPictures = std::vector<CPicture>;

// The game's two picture folders.
inline CPicture InMenus(const std::string& Name, std::function<CCanvas()> fnDraw)
{
    return {"menus/images/" + Name, std::move(fnDraw)};
}
inline CPicture InHud(const std::string& Name, std::function<CCanvas()> fnDraw)
{
    return {"hud/images/" + Name, std::move(fnDraw)};
}

// The groups, each drawn by its own file.
CPictures ButtonPictures();    // every two-state button of the menus
CPictures SmallMenuPictures(); // cursor, list arrows, highlight, scroll bar, slider knob, chat box
CPictures MainScreens();       // main menu, single-player menu, spline editor
CPictures NetworkScreens();    // lobby and connect screen
CPictures SettingsScreens();   // options and credits
CPictures ResultPictures();    // won and lost
CPictures LogoPictures();      // the start-up picture
CPictures HudPictures();       // the play overlay's panels and ball icons
CPictures FacePictures();      // the four danger faces
CPictures FlarePictures();     // the particle flare
CPictures LevelBackgrounds();  // pictures behind the levels

// All of them, in a fixed order.
CPictures Catalogue();
} // namespace art
