#include "Catalogue.h"

namespace art {

Pictures catalogue()
{
    Pictures all;
    for (auto group : {mainScreens, networkScreens, settingsScreens, buttonPictures, smallMenuPictures, resultPictures, logoPictures, hudPictures,
                       facePictures, flarePictures, levelBackgrounds}) {
        Pictures part = group();
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

} // namespace art
