// Lays out a page's rows in dialog units.

#include "orlo/pages/field_layout.h"

#include <afxres.h>

#include <algorithm>
#include <limits>
#include <set>
#include <string>

#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"

namespace {

// In dialog units.
constexpr int kMargin = 7;       // around the page
constexpr int kOneColumn = 186;  // width of a page of the library
constexpr int kTwoColumns = 156; // width of each column
constexpr int kColumnGap = 7;
constexpr int kTallest = 220; // maximum height of a page with one column
constexpr int kInset = 7;     // of the rows in a group
constexpr int kBoxTop = 11, kBoxBottom = 6;
constexpr int kRowGap = 3;
constexpr int kTextLine = 8;
constexpr int kLabelGap = 4; // also between a field and its unit
constexpr int kNarrowestField = 60;
constexpr int kRadioPitch = 12;
constexpr int kBoxWidth = 14; // of a check box, with the gap to its text
constexpr int kButtonWidth = 50, kButtonPadding = 12;
constexpr int kDotsWidth = 14;
constexpr int kSplitGroup = 24; // by which a column may be higher to keep a group together

constexpr char kDots[] = "...";

// The labels of a page, with unique mnemonics. Letters that differ in case are the same mnemonic; those of the buttons
// beside the page are taken.
class Mnemonics {
public:
    Mnemonics() {
        for (const UINT button : {IDS_PANE_APPLY, IDS_PANE_RESET, IDS_PANE_CLOSE})
            Unique(std::string(LibraryText(button)));
        CString help; // of a modal sheet
        help.LoadString(AFX_IDS_SHEET_HELP);
        Unique(std::string(help));
    }
    std::string Unique(const std::string& label) {
        std::string unique;
        for (const char* at = label.c_str(); *at != '\0';) {
            const char* next = ::CharNextA(at);
            const bool isMnemonic = *at == '&' && *next != '\0' && *next != '&';
            if (*at == '&' && *next == '&') next = ::CharNextA(next); // an escaped ampersand
            if (!isMnemonic || m_taken.insert(Folded(next)).second) unique.append(at, next);
            at = next;
        }
        return unique;
    }

private:
    static std::string Folded(const char* letter) {
        std::string folded(letter, static_cast<const char*>(::CharNextA(letter)));
        ::CharUpperBuffA(folded.data(), static_cast<DWORD>(folded.size()));
        return folded;
    }

    std::set<std::string> m_taken;
};

class Layout {
public:
    explicit Layout(const std::vector<std::unique_ptr<Field>>& fields) : m_fields(fields) {
        for (const auto& field : fields) {
            m_labelWidth = std::max(m_labelWidth, field->kind->hasLabel ? m_font.Width(field->row->label) : 0);
            m_inset = field->row->group.empty() ? m_inset : kInset;
        }
    }

    FieldLayout Make() {
        const size_t count = m_fields.size();
        MeasureRows(kOneColumn);
        const bool isTall = ColumnHeight(0, count) + 2 * kMargin > kTallest;
        if (!isTall || count == 1) return Finish({{0, count}}, kOneColumn);
        MeasureRows(kTwoColumns);
        const size_t split = BestSplit();
        return Finish({{0, split}, {split, count}}, kTwoColumns);
    }

private:
    struct Range {
        size_t first, last;
    };

    FieldLayout Finish(const std::vector<Range>& columns, int width) {
        int left = kMargin, height = 0;
        for (const Range& column : columns) {
            height = std::max(height, PlaceColumn(column, left, width));
            left += width + kColumnGap;
        }
        return {std::move(m_items), CSize(left - kColumnGap + kMargin, height + 2 * kMargin)};
    }

    // Returns the row at which the second column begins: the one that minimizes the height of the higher column, except
    // that splitting a group counts as kSplitGroup.
    size_t BestSplit() const {
        size_t best = 1;
        int least = std::numeric_limits<int>::max();
        for (size_t row = 1; row < m_fields.size(); ++row) {
            if (IsBeside(row)) continue;
            const bool splitsGroup = IsInGroup(row) && SameGroup(row - 1, row);
            const int longer = std::max(ColumnHeight(0, row), ColumnHeight(row, m_fields.size()));
            const int height = longer + (splitsGroup ? kSplitGroup : 0);
            if (height >= least) continue;
            least = height;
            best = row;
        }
        return best;
    }

    const FieldRow& Row(size_t row) const { return *m_fields[row]->row; }
    bool IsInGroup(size_t row) const { return !Row(row).group.empty(); }
    // Returns whether the row is a "..." button beside the previous row.
    bool IsBeside(size_t row) const {
        return row > 0 && row < m_fields.size() && Row(row).kind == FieldKind::Button && Row(row).label == kDots &&
               m_fields[row - 1]->kind->hasLabel && SameGroup(row - 1, row);
    }
    bool SameGroup(size_t a, size_t b) const { return Row(a).group == Row(b).group; }
    int LabelWidth(int column) const {
        return std::min(m_labelWidth, column - 2 * m_inset - kLabelGap - kNarrowestField);
    }

    int TextHeight(const std::string& text, int width) const { return kTextLine * m_font.Lines(text, width); }

    int RowHeight(size_t row, int column) const {
        const Field& field = *m_fields[row];
        if (IsBeside(row)) return -kRowGap;
        if (IsRadioChoice(Row(row)))
            return kBoxTop + static_cast<int>(Row(row).choices.size()) * kRadioPitch + kBoxBottom - kRowGap;
        if (Row(row).kind == FieldKind::Note) return TextHeight(Row(row).label, column - 2 * m_inset);
        if (Row(row).kind == FieldKind::Check) {
            const int lines = TextHeight(Row(row).label, column - 2 * m_inset - kBoxWidth);
            return std::max<int>(field.kind->height, lines + 2);
        }
        const int label = field.kind->hasLabel ? TextHeight(Row(row).label, LabelWidth(column)) + 2 : 0;
        return std::max<int>(field.kind->height, label);
    }

    void MeasureRows(int column) {
        m_heights.clear();
        for (size_t row = 0; row < m_fields.size(); ++row)
            m_heights.push_back(RowHeight(row, column));
    }

    int ColumnHeight(size_t first, size_t last) const {
        int height = -kRowGap;
        for (size_t row = first; row < last; ++row) {
            const bool begins = row == first || !SameGroup(row - 1, row);
            if (IsInGroup(row) && begins) height += kBoxTop;
            height += m_heights[row] + kRowGap;
            const bool ends = row + 1 == last || !SameGroup(row, row + 1);
            if (IsInGroup(row) && ends) height += kBoxBottom;
        }
        return height;
    }

    // Returns the height of the column.
    int PlaceColumn(const Range& range, int left, int width) {
        int y = kMargin;
        size_t box = 0; // the item of the current group box
        for (size_t row = range.first; row < range.last; ++row) {
            const bool begins = row == range.first || !SameGroup(row - 1, row);
            if (IsInGroup(row) && begins) {
                box = m_items.size();
                AddBox(m_mnemonics.Unique(Row(row).group), left, y, width);
                y += kBoxTop;
            }
            const int height = m_heights[row];
            PlaceRow(row, left + m_inset, y, width - 2 * m_inset, height);
            y += height + kRowGap;
            const bool ends = row + 1 == range.last || !SameGroup(row, row + 1);
            if (!IsInGroup(row) || !ends) continue;
            m_items[box].cy = static_cast<short>(y - kRowGap + kBoxBottom - m_items[box].y);
            y += kBoxBottom;
        }
        return y - kRowGap - kMargin;
    }

    void PlaceRow(size_t row, int x, int y, int width, int height) {
        Field& field = *m_fields[row];
        if (IsRadioChoice(Row(row)))
            PlaceRadios(field, x, y, width, height);
        else if (IsBeside(row))
            Add(field, x + width - kDotsWidth, y - kRowGap - m_heights[row - 1], kDotsWidth, kLineHeight, kDots);
        else if (field.kind->hasLabel)
            PlaceLabeled(row, x, y, width, height);
        else
            Add(field, x, y, ControlWidth(field, width), height, m_mnemonics.Unique(Row(row).label));
    }

    int ControlWidth(const Field& field, int width) const {
        if (field.row->kind != FieldKind::Button) return width;
        return std::min(std::max(kButtonWidth, m_font.Width(field.row->label) + kButtonPadding), width);
    }

    void PlaceLabeled(size_t row, int x, int y, int width, int height) {
        const Field& field = *m_fields[row];
        const int label = std::min(m_labelWidth, width - kLabelGap - kNarrowestField);
        AddText(m_mnemonics.Unique(Row(row).label), 0, x, y + 2, label, height - 2);
        int right = x + width;
        if (IsBeside(row + 1)) right -= kDotsWidth + 2;
        if (!Row(row).unit.empty()) right -= m_font.Width(Row(row).unit) + kLabelGap;
        const int left = x + label + kLabelGap;
        Add(field, left, y, std::max(right - left, kNarrowestField / 2), field.kind->height + field.kind->listHeight,
            "");
        if (!Row(row).unit.empty())
            AddText(Row(row).unit, SS_NOPREFIX, right + kLabelGap, y + 2, m_font.Width(Row(row).unit), kTextLine);
    }

    void PlaceRadios(const Field& field, int x, int y, int width, int height) {
        AddBox(m_mnemonics.Unique(field.row->label), x, y, width);
        m_items.back().cy = static_cast<short>(height + kRowGap - 2);
        for (size_t i = 0; i < field.row->choices.size(); ++i) {
            Add(field, x + kInset, y + kBoxTop + static_cast<int>(i) * kRadioPitch, width - 2 * kInset,
                field.kind->height, m_mnemonics.Unique(field.row->choices[i]));
            DialogItem& button = m_items.back();
            button.id = static_cast<WORD>(field.id + static_cast<int>(i));
            if (i > 0) button.style &= ~static_cast<DWORD>(WS_GROUP | WS_TABSTOP);
        }
    }

    void Add(const Field& field, int x, int y, int cx, int cy, const std::string& text) {
        DWORD style = field.kind->style;
        const bool isEdit = ::lstrcmpiA(field.kind->className, "EDIT") == 0;
        if (isEdit && field.row->readOnly) style |= ES_READONLY;
        const WORD id = field.row->kind == FieldKind::Note ? 0xFFFF : static_cast<WORD>(field.id);
        AddItem({field.kind->className, style, 0, 0, 0, 0, id, text}, x, y, cx, cy);
    }
    void AddText(const std::string& text, DWORD style, int x, int y, int cx, int cy) {
        AddItem({"STATIC", style | WS_GROUP, 0, 0, 0, 0, 0xFFFF, text}, x, y, cx, cy);
    }
    void AddBox(const std::string& title, int x, int y, int cx) {
        AddItem({"BUTTON", WS_GROUP | BS_GROUPBOX, 0, 0, 0, 0, 0xFFFF, title}, x, y, cx, 0);
    }
    void AddItem(DialogItem item, int x, int y, int cx, int cy) {
        item.x = static_cast<short>(x);
        item.y = static_cast<short>(y);
        item.cx = static_cast<short>(cx);
        item.cy = static_cast<short>(cy);
        m_items.push_back(std::move(item));
    }

    static constexpr int kLineHeight = 13;

    const std::vector<std::unique_ptr<Field>>& m_fields;
    DialogFont m_font;
    Mnemonics m_mnemonics;
    std::vector<DialogItem> m_items;
    int m_labelWidth = 0, m_inset = 0;
    std::vector<int> m_heights; // of the rows
};

} // namespace

FieldLayout LayOutFields(const std::vector<std::unique_ptr<Field>>& fields) {
    return Layout(fields).Make();
}
