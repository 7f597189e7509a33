#include "TestSupport.h"

#include "platform/interfaces/ErrorBox.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>

namespace
{
ErrorHandler g_pPreviousHandler = nullptr;

void Record(const char* pText)
{
    CErrorRecorder::Errors().push_back(pText);
}
} // namespace

std::vector<std::string>& CErrorRecorder::Errors()
{
    static std::vector<std::string> s_vErrors;
    return s_vErrors;
}

CErrorRecorder::CErrorRecorder()
{
    Errors().clear();
    g_pPreviousHandler = SetErrorHandler(Record);
}

CErrorRecorder::~CErrorRecorder()
{
    SetErrorHandler(g_pPreviousHandler);
}

CTempFile::CTempFile(const std::string& Contents, const std::string& Name)
{
    std::string Template = (std::filesystem::temp_directory_path() / "trelvane-test-XXXXXX").string();
    m_Folder = mkdtemp(Template.data());
    m_Path = m_Folder + "/" + Name;
    std::filesystem::create_directories(std::filesystem::path(m_Path).parent_path());
    std::ofstream(m_Path, std::ios::binary) << Contents;
}

CTempFile::~CTempFile()
{
    std::error_code Error;
    std::filesystem::remove_all(m_Folder, Error);
}

CCommandResult RunCommand(const std::string& Command)
{
    CCommandResult Result{-1, ""};
    FILE* pPipe = popen((Command + " 2>&1").c_str(), "r");
    if(!pPipe)
        return Result;
    std::array<char, 4096> aBuffer;
    size_t Read;
    while((Read = std::fread(aBuffer.data(), 1, aBuffer.size(), pPipe)) > 0)
        Result.m_Output.append(aBuffer.data(), Read);
    const int iStatus = pclose(pPipe);
    Result.m_iExitCode = WIFEXITED(iStatus) ? WEXITSTATUS(iStatus) : -1;
    return Result;
}
