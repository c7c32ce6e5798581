// The commands set, remove and copy: they read streams, change them in memory, and write all of them in one step.

#include <filesystem>
#include <map>

#include "commands.h"
#include "document.h"
#include "edited_set.h"
#include "failure.h"
#include "fields.h"
#include "orlo/summary/edited_document.h"
#include "output_file.h"
#include "sources.h"
#include "text.h"

namespace fs = std::filesystem;

namespace suminfo {
namespace {

// Edits a document and saves it to the output of the command line.
class TargetDocument {
public:
    explicit TargetDocument(const Target& target)
        : output_(target.output), document_(output_.empty() ? orlo::EditedDocument(fs::u8path(target.file))
                                                            : orlo::EditedDocument(ReadFile(target.file))) {}

    std::optional<orlo::Bytes> Read(const std::string& name) const { return document_.Read(name); }
    void Write(const std::string& name, const orlo::Bytes& bytes) { document_.Write(name, bytes); }

    void Commit() {
        if (output_.empty()) return document_.Commit();
        const orlo::Bytes contents = document_.Contents();
        OnFile(output_, [&] {
            WriteOutput(output_, {reinterpret_cast<const char*>(contents.data()), contents.size()});
        });
    }

private:
    const std::string output_;
    orlo::EditedDocument document_;
};

// The two summary streams of a document, each opened when it is first changed.
class Edit {
public:
    explicit Edit(const Target& target) : document_(target) {}

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
    TargetDocument document_;
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

void SetFields(const Target& target, const std::vector<Assignment>& fields, const std::vector<CustomValue>& custom) {
    Edit edit(target);
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

void RemoveFields(const Target& target, const std::vector<std::string>& fields,
                  const std::vector<std::string>& custom) {
    Edit edit(target);
    for (const std::string& name : fields) {
        const Field& field = FieldToRemove(name);
        if (!edit.SetWith(field.format).Remove(field.format, field.id)) throw Failure("the document has no " + name);
    }
    for (const std::string& name : custom)
        if (!edit.SetWith(kUserDefinedFormat).RemoveCustom(name))
            throw Failure("the document has no custom property '" + name + "'");
    edit.Commit();
}

void CopySummary(const std::string& from, const Target& target) {
    std::map<std::string, orlo::Bytes> streams;
    OnFile(from, [&] {
        const Document source(from);
        for (const char* name : {kSummaryStream, kDocumentSummaryStream})
            if (auto bytes = source.Read(name)) streams[name] = RequireUndamaged(std::move(*bytes), name);
        if (streams.empty()) throw Failure("the document has no summary");
    });
    TargetDocument document(target);
    for (const auto& [name, bytes] : streams)
        document.Write(name, bytes);
    document.Commit();
}

} // namespace suminfo
