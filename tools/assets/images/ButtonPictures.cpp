// The menus' buttons. Each picture has exactly the size of the button's hot rectangle, so that what lights
// up under the mouse is what reacts to a click.
#include "Catalogue.h"
#include "Widgets.h"

namespace art
{
namespace
{
struct CButtonLook
{
    const char* m_pName; // the file names are m_pName + "1.png" and m_pName + "2.png" (lit)
    int m_iWidth, m_iHeight;
    const char* m_pLabel;
    int m_iLabelSize;
};

const CButtonLook BUTTONS[] = {
    {"Single_Player", 244, 37, "Single Player", 18},
    {"Multi_Player", 244, 37, "Multi Player", 18},
    {"Spline_Editor", 244, 37, "Spline Editor", 18},
    {"Options", 152, 37, "Options", 18},
    {"Quit", 85, 37, "Quit", 18},
    {"credits", 140, 27, "Credits", 14},
    {"return_to_main", 343, 33, "Return to Main Menu", 17},
    {"start", 173, 78, "Start", 30},
    {"connect_client", 291, 38, "Join as Client", 18},
    {"connect_server", 291, 38, "Host as Server", 18},
};
} // namespace

CPictures ButtonPictures()
{
    CPictures vOut;
    for(const CButtonLook& Look : BUTTONS)
        for(ELit eLit : {ELit::No, ELit::Yes})
        {
            std::string File = std::string(Look.m_pName) + (eLit == ELit::Yes ? "2.png" : "1.png");
            vOut.push_back(InMenus(File, [Look, eLit] {
                return Button(Look.m_iWidth, Look.m_iHeight, Look.m_pLabel, eLit, Look.m_iLabelSize);
            }));
        }
    return vOut;
}
} // namespace art
