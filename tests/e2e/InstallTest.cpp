#include "TestSupport.h"
#include "e2e/GameSession.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace
{
const std::string REPOSITORY = TRELVANE_SOURCE_DIR;
const std::string BUILD = TRELVANE_BUILD_DIR;
const std::string APP = "org.trelvane.Trelvane";

bool Has(const std::string& Text, const std::string& Part)
{
    return Text.find(Part) != std::string::npos;
}

std::string Lines(const std::string& Text, const std::string& Start)
{
    std::string Found;
    size_t Begin = 0;
    while(Begin < Text.size())
    {
        const size_t End = std::min(Text.find('\n', Begin), Text.size());
        if(Text.compare(Begin, Start.size(), Start) == 0)
            Found += Text.substr(Begin, End - Begin + 1);
        Begin = End + 1;
    }
    return Found;
}
} // namespace

TEST(Install, TheInstalledGameStartsFromAnyFolderOnItsLogoWithItsMenuEntryIconsAndManualAndUninstallsCleanly)
{
    CTempFile Root("", "root/.keep"), Elsewhere("", "notes.txt");
    const std::string Stage = std::filesystem::path(Root.Path()).parent_path().string();
    const std::string Prefix = Stage + "/usr";
    const CCommandResult Install = RunCommand("DESTDIR=" + Stage + " cmake --install " + BUILD + " --prefix /usr");
    ASSERT_EQ(Install.m_iExitCode, 0) << Install.m_Output;

    for(const char* pSize : {"48", "128", "256"})
    {
        CPicture Icon;
        ASSERT_TRUE(
            ReadPicture(Prefix + "/share/icons/hicolor/" + pSize + "x" + pSize + "/apps/" + APP + ".png", Icon));
        EXPECT_EQ(Icon.m_iWidth, std::stoi(pSize));
        EXPECT_EQ(Icon.m_iHeight, std::stoi(pSize));
    }
    const CCommandResult Entry =
        RunCommand("desktop-file-validate " + Prefix + "/share/applications/" + APP + ".desktop");
    EXPECT_EQ(Entry.m_iExitCode, 0) << Entry.m_Output;
    EXPECT_EQ(Entry.m_Output, "");
    const CCommandResult Meta =
        RunCommand("appstreamcli validate --no-net " + Prefix + "/share/metainfo/" + APP + ".metainfo.xml");
    EXPECT_EQ(Meta.m_iExitCode, 0) << Meta.m_Output;
    const CCommandResult Manual =
        RunCommand("MANWIDTH=100 man --warnings -l " + Prefix + "/share/man/man6/trelvane.6.gz");
    EXPECT_EQ(Manual.m_iExitCode, 0);
    for(const char* pPart : {"CONTROLS", "NETWORK GAME", "FILES", "port 666", "Track List.txt"})
        EXPECT_TRUE(Has(Manual.m_Output, pPart)) << pPart;
    EXPECT_EQ(Lines(Manual.m_Output, "troff:") + Lines(Manual.m_Output, "man:"), "");

    // Started from a folder with no data in it, the installed game plays with its own.
    CGameSession Game;
    ASSERT_TRUE(Game.Start(Prefix + "/bin/trelvane", Elsewhere.Folder())) << Game.Log();
    CPicture Logo;
    ASSERT_TRUE(ReadPicture(REPOSITORY + "/data/menus/images/kestrun.png", Logo));
    EXPECT_TRUE(Game.WaitForScreen([&](const CPicture& Screen) { return Screen.Likeness(Logo, 0, 0) > 0.95; }, 15));
    Game.Key("Escape");
    EXPECT_EQ(Game.WaitForExit(10), 0) << Game.Log();
    EXPECT_FALSE(Has(Game.Log(), "ERROR")) << Game.Log();

    // The installed level tool, given a level of the folder it starts in, finds the pictures of the installed game.
    std::filesystem::copy_file(REPOSITORY + "/data/tracks/06-overpass.txt", Elsewhere.Folder() + "/mine.txt");
    const CCommandResult Check =
        RunCommand("cd " + Elsewhere.Folder() + " && " + Prefix + "/bin/trelvane-level check mine.txt");
    EXPECT_EQ(Check.m_iExitCode, 0) << Check.m_Output;
    EXPECT_EQ(Check.m_Output, "");

    // Uninstalling takes every file and the game's own folders, and leaves the folders others share.
    const CCommandResult Uninstall = RunCommand("DESTDIR=" + Stage + " cmake --build " + BUILD + " --target uninstall");
    ASSERT_EQ(Uninstall.m_iExitCode, 0) << Uninstall.m_Output;
    EXPECT_EQ(RunCommand("find " + Prefix + " ! -type d").m_Output, "");
    EXPECT_FALSE(std::filesystem::exists(Prefix + "/share/trelvane"));
    EXPECT_TRUE(std::filesystem::exists(Prefix + "/share/applications"));
}

TEST(Install, AGameWithoutDataSaysSoOnceAndEnds)
{
    CTempFile Empty("", "notes.txt");
    const std::string& Folder = Empty.Folder();
    // Without a display server the error box can't open, so the line on standard error is all there is.
    const CCommandResult Run =
        RunCommand("cd " + Folder + " && SDL_VIDEODRIVER=dummy timeout 20 " + std::string(TRELVANE_BINARY));
    EXPECT_EQ(Run.m_iExitCode, 1) << Run.m_Output;
    EXPECT_EQ(Lines(Run.m_Output, "Trelvane:"), "Trelvane: ERROR: " + Folder + "/data doesn't exist.\n");
}

TEST(Install, ThePackageHoldsTheGameItsDataAndMenuEntryDependsOnItsLibrariesAndGrantsPort666)
{
    CTempFile Out("", "notes.txt");
    const std::string& Folder = Out.Folder();
    const CCommandResult Pack = RunCommand("cpack -G DEB --config " + BUILD + "/CPackConfig.cmake -B " + Folder);
    ASSERT_EQ(Pack.m_iExitCode, 0) << Pack.m_Output;
    const std::string Deb = Folder + "/trelvane_" TRELVANE_VERSION "_amd64.deb";
    ASSERT_TRUE(std::filesystem::exists(Deb)) << Pack.m_Output;

    const std::string Control = RunCommand("dpkg-deb -f " + Deb).m_Output;
    for(const char* pField : {"Package: trelvane\n", "Version: " TRELVANE_VERSION "\n", "Architecture: amd64\n",
                              "Section: games\n", "libsdl2-2.0-0", "libsdl2-mixer-2.0-0", "libsdl2-image-2.0-0",
                              "libsdl2-ttf-2.0-0", "libc6", "fonts-dejavu-core", "libcap2-bin"})
        EXPECT_TRUE(Has(Control, pField)) << pField << " in\n" << Control;

    const std::string Contents = RunCommand("dpkg-deb -c " + Deb).m_Output;
    for(const std::string& File : std::vector<std::string>{
            "./usr/bin/trelvane\n", "./usr/bin/trelvane-bot\n", "./usr/share/trelvane/data/tracks/Track List.txt\n",
            "./usr/share/trelvane/data/tracks/20-finale.txt\n", "./usr/share/trelvane/data/menus/images/kestrun.png\n",
            "./usr/share/trelvane/data/Music/01-glass-garden.mp3\n", "./usr/share/applications/" + APP + ".desktop\n",
            "./usr/share/metainfo/" + APP + ".metainfo.xml\n",
            "./usr/share/icons/hicolor/256x256/apps/" + APP + ".png\n", "./usr/share/man/man6/trelvane.6.gz\n",
            "./usr/share/man/man6/trelvane-bot.6.gz\n", "./usr/share/man/man6/trelvane-level.6.gz\n",
            "./usr/share/doc/trelvane/copyright\n"})
        EXPECT_TRUE(Has(Contents, File)) << File;
    EXPECT_FALSE(Has(Contents, "_tests")) << "test programs are not for players";
    size_t OwnedByRoot = 0;
    for(const char* pMode :
        {"-rw-r--r-- root/root", "-rwxr-xr-x root/root", "drwxr-xr-x root/root", "lrwxrwxrwx root/root"})
        OwnedByRoot += Lines(Contents, pMode).size();
    EXPECT_EQ(OwnedByRoot, Contents.size()) << "every file belongs to root and is readable by all:\n" << Contents;

    const std::string PostInst = RunCommand("dpkg-deb -I " + Deb + " postinst").m_Output;
    EXPECT_TRUE(Has(PostInst, "setcap cap_net_bind_service=+ep /usr/bin/trelvane")) << PostInst;
    const CCommandResult Lint = RunCommand("lintian --tag-display-limit 0 " + Deb);
    EXPECT_EQ(Lines(Lint.m_Output, "E:"), "") << Lint.m_Output;
}
