// Stands for the user's browser: puts the command line that it was started with into the file that BROWSER_LOG names.

#include <windows.h>

#include <fstream>
#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, char*, int) {
    char path[MAX_PATH] = "";
    ::GetEnvironmentVariableA("BROWSER_LOG", path, sizeof path);
    const std::string part = std::string(path) + ".part"; // what has the name is complete
    std::ofstream(part, std::ios::binary) << ::GetCommandLineA();
    return ::MoveFileExA(part.c_str(), path, MOVEFILE_REPLACE_EXISTING) ? 0 : 1;
}
