#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

// Records what the game would have shown in error boxes, instead of printing it.
class CErrorRecorder
{
public:
    CErrorRecorder();
    ~CErrorRecorder();
    static std::vector<std::string>& Errors();
};

// A file in a fresh temporary folder, removed with the object.
class CTempFile
{
public:
    explicit CTempFile(const std::string& Contents, const std::string& Name = "level.txt");
    ~CTempFile();
    const char* Path() const { return m_Path.c_str(); }
    const std::string& Folder() const { return m_Folder; }

private:
    std::string m_Folder;
    std::string m_Path;
};

// Runs a shell command and gives its exit code and what it printed on both streams.
struct CCommandResult
{
    int m_iExitCode;
    std::string m_Output;
};
CCommandResult RunCommand(const std::string& Command);
