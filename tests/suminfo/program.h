// Runs suminfo.exe as a person does: a command line, what it prints, its exit code. And folders to work in.
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

// What starts suminfo.exe with these arguments, in UTF-8.
std::wstring CommandLineOf(const std::vector<std::string>& arguments);
// Arguments in UTF-8; the working folder is the given one; standard input holds the given text.
Outcome RunSuminfo(const std::vector<std::string>& arguments,
                   const std::filesystem::path& folder = std::filesystem::temp_directory_path(),
                   const std::string& input = {});

// What show --json has printed, one object a line, by the bare names of the files.
std::map<std::string, Json> ByFile(const std::string& lines);

// A folder of its own for each test, gone afterwards.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    // A copy of the file, to be changed; its name is that of the original unless another is given.
    std::filesystem::path Copy(const std::filesystem::path& file, const std::string& name = {}) const;

private:
    std::filesystem::path path_;
};

inline const std::filesystem::path kDocuments = std::filesystem::path(ORLO_TEST_DATA) / "ole";
inline const std::filesystem::path kStreams = std::filesystem::path(ORLO_TEST_DATA) / "propset";
