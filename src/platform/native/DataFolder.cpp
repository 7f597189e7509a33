#include "platform/native/DataFolder.h"

#include "platform/interfaces/Paths.h"

#include <filesystem>
#include <system_error>

namespace
{
namespace fs = std::filesystem;

// False for the empty path, which stands for a folder that could not be found.
bool HoldsData(const fs::path& Folder)
{
    std::error_code Error;
    return !Folder.empty() && fs::is_directory(Folder / "data", Error);
}

// Empty when the folder can't be read, for instance after it was removed.
fs::path WorkingFolder()
{
    std::error_code Error;
    const fs::path Folder = fs::current_path(Error);
    return Error ? fs::path() : Folder;
}

// share/trelvane as seen from the folder of the running program, when the program is an installed one.
fs::path InstalledDataFolder()
{
    std::error_code Error;
    const fs::path Program = fs::read_symlink("/proc/self/exe", Error);
    if(Error)
        return {};
    return Program.parent_path() / TRELVANE_DATA_FROM_BIN;
}
} // namespace

bool EnterDataFolder(std::string& MissingFolder)
{
    std::error_code Error;
    const fs::path Installed = InstalledDataFolder();
    if(HoldsData(Installed))
    {
        fs::current_path(Installed, Error);
        if(!Error)
            return true;
    }
    const fs::path Here = WorkingFolder();
    if(HoldsData(Here))
        return true;
    MissingFolder = (Here / "data").string();
    return false;
}

void FindToolData()
{
    const fs::path Here = WorkingFolder();
    if(HoldsData(Here))
        return;
    const fs::path Installed = InstalledDataFolder();
    if(HoldsData(Installed))
        SetDataRoot(Installed.lexically_normal().string());
}
