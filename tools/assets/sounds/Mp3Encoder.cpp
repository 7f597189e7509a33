#include "sounds/Mp3Encoder.h"

#include "sounds/WavWriter.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace
{
bool IsExecutableFile(const std::string& Path)
{
    std::error_code Ignored;
    return std::filesystem::is_regular_file(Path, Ignored) && access(Path.c_str(), X_OK) == 0;
}

// Runs a program with the given arguments, no shell in between, and waits for it; true when it exits with 0.
bool Run(const std::vector<std::string>& vArguments)
{
    std::vector<char*> vPointers;
    vPointers.reserve(vArguments.size() + 1);
    for(const std::string& Argument : vArguments)
        vPointers.push_back(const_cast<char*>(Argument.c_str()));
    vPointers.push_back(nullptr);
    const pid_t Child = fork();
    if(Child < 0)
        return false;
    if(Child == 0)
    {
        execv(vPointers[0], vPointers.data());
        _exit(127);
    }
    int nStatus = 0;
    if(waitpid(Child, &nStatus, 0) != Child)
        return false;
    return WIFEXITED(nStatus) && WEXITSTATUS(nStatus) == 0;
}

std::vector<std::string> LameArguments(const std::string& Lame, const std::string& Title, const std::string& In,
                                       const std::string& Out)
{
    // Constant bitrate and no ReplayGain scan; the ID3v2 tag holds only fixed text.
    return {Lame,   "--quiet",  "-b",   "128",      "-q", "2", "--noreplaygain", "--id3v2-only", "--tt", Title,
            "--ta", "Trelvane", "--tl", "Trelvane", In,   Out};
}

void RemoveQuietly(const std::string& Path)
{
    std::error_code Ignored;
    std::filesystem::remove(Path, Ignored);
}
} // namespace

std::string FindLame(const std::string& Given)
{
    if(!Given.empty())
        return IsExecutableFile(Given) ? Given : std::string();
    const char* pPath = std::getenv("PATH");
    std::istringstream Folders(pPath != nullptr ? pPath : "");
    std::string Folder;
    while(std::getline(Folders, Folder, ':'))
    {
        std::string Candidate = (std::filesystem::path(Folder.empty() ? "." : Folder) / "lame").string();
        if(IsExecutableFile(Candidate))
            return Candidate;
    }
    return std::string();
}

bool EncodeMp3(const std::string& Lame, const Stereo& Music, const std::string& OutPath, const std::string& Title,
               std::string& Error)
{
    const std::string Source = OutPath + ".tmp.wav";
    const std::string Partial = OutPath + ".part";
    if(!WriteStereoWav(Source, Music))
    {
        RemoveQuietly(Source);
        Error = "cannot write " + Source;
        return false;
    }
    const bool bEncoded = Run(LameArguments(Lame, Title, Source, Partial));
    RemoveQuietly(Source);
    std::error_code Failure;
    if(bEncoded)
        std::filesystem::rename(Partial, OutPath, Failure);
    if(!bEncoded || Failure)
    {
        RemoveQuietly(Partial);
        Error = "lame could not encode " + OutPath;
        return false;
    }
    return true;
}
