// Converts the records of pages and fields to the table of a CFieldPage.

#include "orlo/c/pages.h"

#include <algorithm>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>

#include "orlo/c/busy_scope.h"
#include "orlo/c/guarded_call.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/pages/field_page.h"
#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"
#include "orlo/win/encoded_text.h"

namespace orlo {
namespace {

static_assert(kOrloFieldText == static_cast<int>(FieldKind::Text) &&
              kOrloFieldDate == static_cast<int>(FieldKind::Date) &&
              kOrloFieldNote == static_cast<int>(FieldKind::Note));

// The dialogs are in the code page of the system. Null is an empty text.
std::string ToSystemText(const char* text) {
    return text != nullptr ? Narrow(Widen(text, CP_UTF8), CP_ACP) : "";
}

// Returns nothing if the code page cannot represent the text. A field that showed it anyway would store another text
// when a part of it is edited.
std::optional<std::string> ToExactSystemText(const char* text) {
    std::string narrow = ToSystemText(text);
    if (SystemTextToUtf8(narrow) != (text != nullptr ? text : "")) return std::nullopt;
    return narrow;
}

// An array of records, each of the size that the first one has.
template <class Record>
Record CopyRecordAt(const Record* records, uint32_t index, const std::string& name) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(records) + size_t{index} * records->size;
    return CopyRecord(reinterpret_cast<const Record*>(bytes), name.c_str());
}

// Passes a value to a callback for the duration of a call.
class ValueRecord {
public:
    explicit ValueRecord(const FieldValue& value) : m_text(SystemTextToUtf8(value.text)) {
        m_record = {sizeof m_record, value.number, m_text.c_str()};
    }
    const OrloValue* Get() const { return &m_record; }

private:
    std::string m_text;
    OrloValue m_record;
};

// Throws kOrloBadArgument with a message in the form that CFieldPage uses for an invalid row.
[[noreturn]] void RejectField(uint32_t index, const OrloField& field, const std::string& reason) {
    const char* label = field.label != nullptr ? field.label : "";
    ThrowError(kOrloBadArgument, ("row " + std::to_string(index) + " (\"" + label + "\"): " + reason).c_str());
}

void SetAccess(FieldRow& row, const OrloPage& page, uint32_t index) {
    row.get = [page, index](GraphicStruct* graphic, FieldValue& value) {
        OrloValue record = {sizeof record, 0.0, nullptr};
        if (!CallHost(page.get, page.context, graphic, index, &record)) return false;
        std::optional<std::string> text = ToExactSystemText(record.text);
        if (text) value = {record.number, std::move(*text)};
        return text.has_value();
    };
    if (page.set == nullptr) return;
    row.set = [page, index](GraphicStruct* graphic, const FieldValue& value) {
        return CallHost(page.set, page.context, graphic, index, ValueRecord(value).Get()) != 0;
    };
}

void SetCheck(FieldRow& row, const OrloPage& page, uint32_t index) {
    row.check = [page, index](const FieldValue& value) -> std::string {
        char message[512] = "";
        if (CallHost(page.check, page.context, index, ValueRecord(value).Get(), message, sizeof message)) return "";
        message[sizeof message - 1] = '\0';
        return *message != '\0' ? ToSystemText(message) : std::string(LibraryText(IDS_ENTER_VALUE));
    };
}

FieldRow RowOf(const OrloPage& page, const OrloField& field, uint32_t index) {
    FieldRow row;
    row.kind = static_cast<FieldKind>(field.kind);
    row.label = ToSystemText(field.label);
    row.property = field.property != nullptr ? field.property : "";
    row.group = ToSystemText(field.group);
    row.unit = ToSystemText(field.unit);
    row.help = ToSystemText(field.help);
    if (field.choiceCount > 0 && field.choices == nullptr) RejectField(index, field, "the array of choices is null");
    for (uint32_t i = 0; i < field.choiceCount; ++i)
        row.choices.push_back(ToSystemText(field.choices[i]));
    row.min = field.min;
    row.max = field.max;
    row.readOnly = (field.flags & kOrloFieldReadOnly) != 0;
    row.inPreview = (field.flags & kOrloFieldInPreview) != 0;
    if (field.flags & kOrloFieldByCallback) {
        if (page.get == nullptr) RejectField(index, field, "it is read by a callback, but the page has none");
        SetAccess(row, page, index);
    }
    if (page.check != nullptr) SetCheck(row, page, index);
    if (page.press != nullptr && field.kind == kOrloFieldButton)
        row.press = [page, index] { return CallHost(page.press, page.context, index) != 0; };
    return row;
}

FieldTable TableOf(const OrloPage& page) {
    FieldTable table;
    RequireNotNull(page.caption, "the caption");
    RequireNotNull(page.fields, "the array of fields");
    table.caption = ToSystemText(page.caption);
    for (uint32_t i = 0; i < page.fieldCount && i <= CFieldPage::kMaxRows; ++i)
        table.rows.push_back(RowOf(page, CopyRecordAt(page.fields, i, "field " + std::to_string(i)), i));
    if (page.types != nullptr || page.accepts != nullptr)
        table.accepts = [page](GraphicStruct* graphic) {
            const uint8_t* end = page.types + page.typeCount;
            const bool isOfType = page.types == nullptr || std::find(page.types, end, graphic->bType) != end;
            return isOfType && (page.accepts == nullptr || CallHost(page.accepts, page.context, graphic) != 0);
        };
    if (page.status != nullptr)
        table.onStatus = [page](const std::string& help) {
            CallHost(page.status, page.context, SystemTextToUtf8(help).c_str());
        };
    return table;
}

} // namespace

void AddPages(const OrloSheet& record, CGraphicPropertySheet& sheet) {
    if (record.pageCount > 0) RequireNotNull(record.pages, "sheet->pages");
    std::set<uint32_t> numbers;
    for (uint32_t i = 0; i < record.pageCount; ++i) {
        const std::string name = "page " + std::to_string(i);
        try {
            const OrloPage page = CopyRecordAt(record.pages, i, "the record");
            if (!numbers.insert(page.number).second)
                ThrowError(kOrloBadArgument, ("another page has the number " + std::to_string(page.number)).c_str());
            ::AddFieldPage(&sheet, page.number, TableOf(page));
        } catch (const std::invalid_argument& error) {
            ThrowError(kOrloBadArgument, (name + ": " + SystemTextToUtf8(error.what())).c_str());
        } catch (const CallError& error) {
            ThrowError(error.result, (name + ": " + error.text).c_str());
        }
    }
}

} // namespace orlo
