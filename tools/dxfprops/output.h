// The results of the commands as lines of text, JSON, JSON lines and CSV; all UTF-8.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "tools/dxfprops/commands.h"

namespace dxfprops {

enum class Form { text, json, jsonLines, csv };

// Prints the contents of a drawing in a few lines.
void PrintSummary(const std::string& file, std::ostream& out);
// Prints one line for each difference.
void Print(const std::vector<Difference>& differences, const std::string& before, const std::string& after,
           std::ostream& out);

// Prints results while a file is processed: JSON as an array with one object per file, which has `file` and a list, or
// `file, error, line`; JSON lines and CSV with one line for each item or failed file; text with one line for each item.
class ResultPrinter {
public:
    enum class Items { entities, layers, differences };

    // columns: those of CSV that follow the file and, for entities, kind, handle, line and block.
    ResultPrinter(Form form, Items items, std::vector<std::string> columns, std::ostream& out);
    // Ends the array.
    ~ResultPrinter();
    ResultPrinter(const ResultPrinter&) = delete;
    ResultPrinter& operator=(const ResultPrinter&) = delete;

    void BeginFile(const std::string& file, bool isOneOfMany);
    void Add(const EntityProperties& entity);
    void Add(const Difference& difference, const std::string& before, const std::string& after);
    void Add(const dxf::Contents::Layer& layer);
    void EndFile();
    // Prints an error instead of a file's results, or after some of them.
    void Fail(const std::string& file, const std::string& error, uint32_t line);

private:
    void AddJson(nlohmann::ordered_json item);
    void AddCsv(const dxf::RecordName& name, const Values& values);
    void BeginObject();

    Form form_;
    Items kind_;
    std::vector<std::string> columns_;
    std::ostream& out_;
    std::string file_;
    size_t files_ = 0, items_ = 0; // items of the current file
    bool isOpen_ = false;          // the object of the file has begun
};

// Prints an array with one object per file, or one line per file: file and the result of the call, or file, error, line
// for a file that cannot be processed. Returns false if there was any.
bool PrintObjects(const std::vector<std::string>& files, Form form,
                  const std::function<nlohmann::ordered_json(const std::string&)>& describe, std::ostream& out);

// Reads entities in the format of Form::json or Form::jsonLines. Returns the entities of each file, in the original
// order. Throws ReadError.
std::vector<std::pair<std::string, std::vector<EntityProperties>>> ReadEntities(const std::string& json);

} // namespace dxfprops
