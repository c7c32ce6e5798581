// Runs suminfo.exe with a command line, and returns its output and exit code. Also creates work folders.
#pragma once

#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

using Json = nlohmann::json;

struct Outcome {
    int exitCode;
    std::string out, err;
};

// Returns the command line that starts suminfo.exe with these arguments, in UTF-8.
std::wstring CommandLineOf(const std::vector<std::string>& arguments);
// Arguments are in UTF-8. The text is passed on standard input.
Outcome RunSuminfo(const std::vector<std::string>& arguments,
                   const std::filesystem::path& folder = std::filesystem::temp_directory_path(),
                   const std::string& input = {});

// Splits the output of show --json, one object per line, by file name.
std::map<std::string, Json> ByFile(const std::string& lines);

// A temporary folder, deleted by the destructor.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    // Copies a file for modification, under its own name unless another is given.
    std::filesystem::path Copy(const std::filesystem::path& file, const std::string& name = {}) const;

private:
    std::filesystem::path path_;
};

inline const std::filesystem::path kDocuments = std::filesystem::path(ORLO_TEST_DATA) / "ole";
inline const std::filesystem::path kStreams = std::filesystem::path(ORLO_TEST_DATA) / "propset";
