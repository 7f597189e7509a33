#pragma once
#include <cstdint>
#include <istream>
#include <string>
#include <vector>

constexpr const char* TRACK_FOLDER = "data//tracks//";
constexpr const char* TRACK_LIST_FILE = "data//tracks//Track List.txt";

// The level files in order of play, and the two counters of a single player run.
class CTrackList
{
public:
    // Longest name a line can give; a longer line ends the list with its first this many characters.
    static constexpr size_t MAX_LINE_CHARS = 255;

    bool Load(const char* pFileName);
    // Appends one entry for each line of the stream. The last line needs no line break: a final one (or a
    // blank line) gives an entry of the bare folder, which then fails to load as a level.
    void ReadLines(std::istream& Stream);

    std::vector<std::string> m_vFiles; // full paths, folder included
    uint32_t m_uiNumFiles = 0;
    uint32_t m_uiCurrentFile = 0;
    uint32_t m_uiRound = 1; // never goes down; the chains roll faster with each round
};
