#include "sounds/Effects.h"
#include "sounds/Mp3Encoder.h"
#include "sounds/MusicWriter.h"
#include "sounds/WavWriter.h"

#include <filesystem>
#include <iostream>
#include <string>

namespace
{
constexpr int EXIT_FAILED = 1;
constexpr int EXIT_BAD_USAGE = 2;

const char* const USAGE = "usage: trelvane-sounds OUT_DATA_DIR [--lame PATH]\n";

const char* const HELP = "Writes the game's six sound effects (WAV) below OUT_DATA_DIR/menus/sounds and\n"
                         "OUT_DATA_DIR/hud/sounds, and its music (MP3, encoded with lame) into OUT_DATA_DIR/Music.\n"
                         "The same program always writes the same bytes.\n"
                         "  --lame PATH  the lame encoder to use (default: lame on PATH)\n";

struct Options
{
    std::string m_DataDir;
    std::string m_Lame;
};

int Fail(const std::string& Reason)
{
    std::cerr << "trelvane-sounds: " << Reason << "\n";
    return EXIT_FAILED;
}

// False when the command line is not one the program understands.
bool ParseArguments(int nCount, char** ppArguments, Options& Chosen)
{
    for(int i = 1; i < nCount; ++i)
    {
        const std::string Argument = ppArguments[i];
        if(Argument == "--lame" && i + 1 < nCount)
            Chosen.m_Lame = ppArguments[++i];
        else if(Argument.empty() || Argument[0] == '-' || !Chosen.m_DataDir.empty())
            return false;
        else
            Chosen.m_DataDir = Argument;
    }
    return !Chosen.m_DataDir.empty();
}

bool MakeFolderFor(const std::filesystem::path& File)
{
    std::error_code Failure;
    std::filesystem::create_directories(File.parent_path(), Failure);
    return !Failure;
}

bool WriteEffects(const std::filesystem::path& DataDir, std::string& Error)
{
    for(const EffectFile& Effect : EffectFiles())
    {
        const std::filesystem::path File = DataDir / Effect.m_pPath;
        if(!MakeFolderFor(File) || !WriteMonoWav(File.string(), Effect.m_pMake()))
        {
            Error = "cannot write " + File.string();
            return false;
        }
    }
    return true;
}
} // namespace

int main(int nCount, char** ppArguments)
{
    Options Chosen;
    if(nCount == 2 && std::string(ppArguments[1]) == "--help")
    {
        std::cout << USAGE << HELP;
        return 0;
    }
    if(!ParseArguments(nCount, ppArguments, Chosen))
    {
        std::cerr << USAGE;
        return EXIT_BAD_USAGE;
    }
    // Looked for first, so that a machine without lame gets no half-made set of files.
    const std::string Lame = FindLame(Chosen.m_Lame);
    if(Lame.empty())
        return Fail(Chosen.m_Lame.empty() ? "lame not found on PATH (install the lame package or pass --lame PATH)"
                                          : "not an executable lame: " + Chosen.m_Lame);
    std::string Error;
    if(!WriteEffects(Chosen.m_DataDir, Error) || !WriteMusic(Chosen.m_DataDir, Lame, Error))
        return Fail(Error);
    return 0;
}
