#include "Catalogue.h"

namespace art
{
CPictures Catalogue()
{
    CPictures vAll;
    for(auto pfnGroup : {MainScreens, NetworkScreens, SettingsScreens, ButtonPictures, SmallMenuPictures,
                         ResultPictures, LogoPictures, HudPictures, FacePictures, FlarePictures, LevelBackgrounds})
    {
        CPictures vPart = pfnGroup();
        vAll.insert(vAll.end(), vPart.begin(), vPart.end());
    }
    return vAll;
}
} // namespace art
