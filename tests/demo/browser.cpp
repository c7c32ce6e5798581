// Stands in for the user's browser: writes its command line to the file named by BROWSER_LOG.

#include <windows.h>

#include <fstream>
#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, char*, int) {
    char path[MAX_PATH] = "";
    ::GetEnvironmentVariableA("BROWSER_LOG", path, sizeof path);
    const std::string part = std::string(path) + ".part"; // renamed only when it is complete
    std::ofstream(part, std::ios::binary) << ::GetCommandLineA();
    return ::MoveFileExA(part.c_str(), path, MOVEFILE_REPLACE_EXISTING) ? 0 : 1;
}
