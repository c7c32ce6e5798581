// The commands set, remove and copy: read streams, change them in memory, and write all at once.

#include <filesystem>
#include <map>

#include "commands.h"
#include "document.h"
#include "edited_set.h"
#include "failure.h"
#include "fields.h"
#include "orlo/summary/edited_document.h"
#include "text.h"

namespace fs = std::filesystem;

namespace suminfo {
namespace {

// The two summary streams of a document, each opened when it is first changed.
class Edit {
public:
    explicit Edit(const std::string& file) : document_(PathOf(file)) {}

    EditedSet& SetWith(const GUID& format) {
        const char* name = ::IsEqualGUID(format, kSummaryFormat) ? kSummaryStream : kDocumentSummaryStream;
        const auto found = sets_.find(name);
        if (found != sets_.end()) return found->second;
        try {
            return sets_.emplace(name, EditedSet(document_.Read(name))).first->second;
        } catch (const Failure& failure) {
            throw Failure(StreamNameShown(name) + ": " + failure.what());
        }
    }

    void Commit() {
        for (const auto& [name, set] : sets_)
            if (set.Changed()) document_.Write(name, set.Image());
        document_.Commit();
    }

private:
    static fs::path PathOf(const std::string& file) {
        if (file == kStandardStream) throw Failure("standard input can only be read");
        return fs::u8path(file);
    }

    orlo::EditedDocument document_;
    std::map<std::string, EditedSet> sets_;
};

// Adds the field's name to a Failure.
template <typename Work>
void WithFieldName(const std::string& name, Work work) {
    try {
        work();
    } catch (const Failure& failure) {
        throw Failure(name + ": " + failure.what());
    }
}

orlo::Bytes RequireUndamaged(orlo::Bytes bytes, const std::string& name) {
    WithFieldName(StreamNameShown(name), [&] { EditedSet check{bytes}; });
    return bytes;
}

} // namespace

void SetFields(const std::string& file, const std::vector<Assignment>& fields, const std::vector<CustomValue>& custom) {
    Edit edit(file);
    for (const Assignment& assignment : fields) {
        const Field& field = FieldToSet(assignment.name);
        WithFieldName(assignment.name, [&] {
            edit.SetWith(field.format).SetField(field.format, field.id, assignment.value, field.type);
        });
    }
    for (const CustomValue& property : custom)
        WithFieldName(property.name,
                      [&] { edit.SetWith(kUserDefinedFormat).SetCustom(property.name, property.value); });
    edit.Commit();
}

void RemoveFields(const std::string& file, const std::vector<std::string>& fields,
                  const std::vector<std::string>& custom) {
    Edit edit(file);
    for (const std::string& name : fields) {
        const Field& field = FieldToRemove(name);
        if (!edit.SetWith(field.format).Remove(field.format, field.id)) throw Failure("it has no " + name);
    }
    for (const std::string& name : custom)
        if (!edit.SetWith(kUserDefinedFormat).RemoveCustom(name))
            throw Failure("it has no custom property '" + name + "'");
    edit.Commit();
}

void CopySummary(const std::string& from, const std::string& to) {
    std::map<std::string, orlo::Bytes> streams;
    OnFile(from, [&] {
        const Document source(from);
        for (const char* name : {kSummaryStream, kDocumentSummaryStream})
            if (auto bytes = source.Read(name)) streams[name] = RequireUndamaged(std::move(*bytes), name);
        if (streams.empty()) throw Failure("it has no summary");
    });
    orlo::EditedDocument target(fs::u8path(to));
    for (const auto& [name, bytes] : streams)
        target.Write(name, bytes);
    target.Commit();
}

} // namespace suminfo
