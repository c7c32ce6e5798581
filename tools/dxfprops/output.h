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

// Prints results while a file is processed. In JSON that is an array with one object per file, which has `file`
// and a list, or `file, error, line`; in JSON lines and CSV one line for each item or failed file, in text one for each
// item.
class ResultPrinter {
public:
    enum class Items { entities, layers, differences };

    // columns: of CSV, after the file, and for entities after kind, handle, line and block.
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
    // Prints an error in place of a file's results, or after some of them.
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
    size_t files_ = 0, items_ = 0; // these of the file
    bool isOpen_ = false;          // the object of the file has begun
};

// Prints an array with one object per file, or a line for each: file and what the call returns, or file, error, line
// for one that is refused. Returns false if any file was refused.
bool PrintObjects(const std::vector<std::string>& files, Form form,
                  const std::function<nlohmann::ordered_json(const std::string&)>& describe, std::ostream& out);

// Reads the form that Form::json and Form::jsonLines have for entities: entities by files, in their order. Throws
// ReadError.
std::vector<std::pair<std::string, std::vector<EntityProperties>>> ReadEntities(const std::string& json);

} // namespace dxfprops
