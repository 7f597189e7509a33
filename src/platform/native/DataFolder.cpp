#include "platform/native/DataFolder.h"

#include "platform/interfaces/Paths.h"

#include <filesystem>
#include <system_error>

namespace
{
namespace fs = std::filesystem;

bool HoldsData(const fs::path& Folder)
{
    std::error_code Error;
    return fs::is_directory(Folder / "data", Error);
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
    if(!Installed.empty() && HoldsData(Installed))
    {
        fs::current_path(Installed, Error);
        if(!Error)
            return true;
    }
    const fs::path Here = fs::current_path(Error);
    if(!Error && HoldsData(Here))
        return true;
    MissingFolder = (Here / "data").string();
    return false;
}

void FindToolData()
{
    std::error_code Error;
    const fs::path Here = fs::current_path(Error);
    if(!Error && HoldsData(Here))
        return;
    const fs::path Installed = InstalledDataFolder();
    if(!Installed.empty() && HoldsData(Installed))
        SetDataRoot(Installed.lexically_normal().string());
}
