// The published property identifiers.

#include "fields.h"

#include <algorithm>

#include "failure.h"

namespace suminfo {

const std::vector<Field>& Fields() {
    static const std::vector<Field> fields = {
        {kSummaryFormat, kCodePageId, 0, "code page"},
        {kSummaryFormat, 2, VT_LPSTR, "title"},
        {kSummaryFormat, 3, VT_LPSTR, "subject"},
        {kSummaryFormat, 4, VT_LPSTR, "author"},
        {kSummaryFormat, 5, VT_LPSTR, "keywords"},
        {kSummaryFormat, 6, VT_LPSTR, "comments"},
        {kSummaryFormat, 7, VT_LPSTR, "template"},
        {kSummaryFormat, 8, VT_LPSTR, "last-author"},
        {kSummaryFormat, 9, VT_LPSTR, "revision"},
        {kSummaryFormat, 10, VT_FILETIME, "edit-time"},
        {kSummaryFormat, 11, VT_FILETIME, "printed"},
        {kSummaryFormat, 12, VT_FILETIME, "created"},
        {kSummaryFormat, 13, VT_FILETIME, "saved"},
        {kSummaryFormat, 14, VT_I4, "pages"},
        {kSummaryFormat, 15, VT_I4, "words"},
        {kSummaryFormat, 16, VT_I4, "characters"},
        {kSummaryFormat, 17, 0, "thumbnail"},
        {kSummaryFormat, 18, VT_LPSTR, "application"},
        {kSummaryFormat, 19, VT_I4, "security"},
        {kDocumentSummaryFormat, kCodePageId, 0, "code page"},
        {kDocumentSummaryFormat, 2, VT_LPSTR, "category"},
        {kDocumentSummaryFormat, 3, VT_LPSTR, "presentation"},
        {kDocumentSummaryFormat, 4, VT_I4, "bytes"},
        {kDocumentSummaryFormat, 5, VT_I4, "lines"},
        {kDocumentSummaryFormat, 6, VT_I4, "paragraphs"},
        {kDocumentSummaryFormat, 7, VT_I4, "slides"},
        {kDocumentSummaryFormat, 8, VT_I4, "notes"},
        {kDocumentSummaryFormat, 9, VT_I4, "hidden-slides"},
        {kDocumentSummaryFormat, 10, VT_I4, "clips"},
        {kDocumentSummaryFormat, 11, VT_BOOL, "scale"},
        {kDocumentSummaryFormat, 12, 0, "heading-pairs"},
        {kDocumentSummaryFormat, 13, 0, "parts"},
        {kDocumentSummaryFormat, 14, VT_LPSTR, "manager"},
        {kDocumentSummaryFormat, 15, VT_LPSTR, "company"},
        {kDocumentSummaryFormat, 16, VT_BOOL, "links-dirty"},
        {kDocumentSummaryFormat, 17, VT_I4, "characters-with-spaces"},
        {kDocumentSummaryFormat, 19, VT_BOOL, "shared"},
        {kDocumentSummaryFormat, 20, 0, "link-base"},
        {kDocumentSummaryFormat, 21, 0, "links"},
        {kDocumentSummaryFormat, 22, VT_BOOL, "links-changed"},
        {kDocumentSummaryFormat, 23, 0, "version"},
        {kDocumentSummaryFormat, 24, 0, "signature"},
        {kDocumentSummaryFormat, 26, VT_LPSTR, "content-type"},
        {kDocumentSummaryFormat, 27, VT_LPSTR, "content-status"},
        {kDocumentSummaryFormat, 28, VT_LPSTR, "language"},
        {kDocumentSummaryFormat, 29, VT_LPSTR, "document-version"},
    };
    return fields;
}

const Field* FieldNamed(std::string_view name) {
    const auto& fields = Fields();
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [name](const Field& field) { return orlo::IsSameName(field.name, name); });
    return found == fields.end() ? nullptr : &*found;
}

const Field& FieldToRemove(const std::string& name) {
    const Field* field = FieldNamed(name);
    if (!field || field->id == kCodePageId) throw Failure("unknown field '" + name + "'; see suminfo set --help");
    return *field;
}

const Field& FieldToSet(const std::string& name) {
    const Field& field = FieldToRemove(name);
    if (field.type == 0) throw Failure("'" + name + "' cannot be set, only removed");
    return field;
}

const Field* FieldOf(const GUID& format, uint32_t id) {
    const auto& fields = Fields();
    const auto found = std::find_if(fields.begin(), fields.end(), [&](const Field& field) {
        return field.id == id && ::IsEqualGUID(field.format, format);
    });
    return found == fields.end() ? nullptr : &*found;
}

const char* FormatName(const GUID& format) {
    if (::IsEqualGUID(format, kSummaryFormat)) return "SummaryInformation";
    if (::IsEqualGUID(format, kDocumentSummaryFormat)) return "DocumentSummaryInformation";
    if (::IsEqualGUID(format, kUserDefinedFormat)) return "UserDefinedProperties";
    return nullptr;
}

} // namespace suminfo
