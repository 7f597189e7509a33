#include "sounds/MusicWriter.h"

#include "sounds/Composer.h"
#include "sounds/Mixer.h"
#include "sounds/Mp3Encoder.h"
#include "sounds/PieceStyle.h"

#include <future>
#include <vector>

namespace
{
struct Outcome
{
    bool m_bWritten;
    std::string m_Error;
};

Outcome WritePiece(const PieceStyle& Style, const std::filesystem::path& Folder, const std::string& Lame)
{
    const std::filesystem::path File = Folder / (Style.m_FileName + ".mp3");
    Outcome Result{true, {}};
    Result.m_bWritten =
        EncodeMp3(Lame, RenderPiece(Style, Compose(Style)), File.string(), Style.m_Title, Result.m_Error);
    return Result;
}
} // namespace

bool WriteMusic(const std::filesystem::path& DataDir, const std::string& Lame, std::string& Error)
{
    const std::filesystem::path Folder = DataDir / "Music";
    std::error_code Failure;
    std::filesystem::create_directories(Folder, Failure);
    if(Failure)
    {
        Error = "cannot create " + Folder.string();
        return false;
    }
    const std::vector<PieceStyle> vPieces = AllPieces();
    std::vector<std::future<Outcome>> vJobs;
    vJobs.reserve(vPieces.size());
    for(const PieceStyle& Style : vPieces)
        vJobs.push_back(
            std::async(std::launch::async, WritePiece, std::cref(Style), std::cref(Folder), std::cref(Lame)));
    bool bAllWritten = true;
    for(std::future<Outcome>& Job : vJobs)
    {
        const Outcome Result = Job.get();
        if(!Result.m_bWritten && bAllWritten)
            Error = Result.m_Error;
        bAllWritten = bAllWritten && Result.m_bWritten;
    }
    return bAllWritten;
}
