#include "tools/SimSupport.h"

#include <cstdlib>

CCommandResult Simulate(const std::string& Arguments)
{
    return RunCommand("'" TRELVANE_SIM_BINARY "' " + Arguments);
}

// The value of the first numeric key of that name, or -1 when there is none.
double Field(const std::string& Output, const std::string& Key)
{
    const size_t At = Output.find("\"" + Key + "\":");
    if(At == std::string::npos)
        return -1;
    const char* pValue = Output.c_str() + At + Key.size() + 3;
    char* pEnd = nullptr;
    const double dValue = std::strtod(pValue, &pEnd);
    return pEnd == pValue ? -1 : dValue;
}

double PlayerField(const std::string& Json, const std::string& Player, const std::string& Key)
{
    const size_t At = Json.find("\"" + Player + "\":");
    return At == std::string::npos ? -1 : Field(Json.substr(At), Key);
}
