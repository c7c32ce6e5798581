// Accesses the properties of a page's rows: by callbacks of the host, or by the property tables.
#pragma once

#include <map>
#include <string>

#include "orlo/binding/object_set.h"
#include "orlo/pages/field_row.h"

class FieldAccess : public PropertyAccess {
public:
    explicit FieldAccess(const FieldTable& table) : m_table(table) {}

    // Adds a row with callbacks, under the name of its property on the page. The row must outlive the object.
    void Add(const std::string& property, const FieldRow& row) { m_rows[property] = &row; }

    // Returns whether the property tables alone do not have all values, or have too many.
    bool IsNeeded() const { return m_table.accepts || !m_rows.empty(); }

    bool Find(GraphicStruct* graphic, const char* name, int32_t& number) override;
    void Get(GraphicStruct* graphic, int32_t number, int vt, void* value) override;
    int Set(GraphicStruct* graphic, int32_t number, int vt, const void* value) override;

private:
    const FieldTable& m_table;
    std::map<std::string, const FieldRow*, std::less<>> m_rows;
    // Result of the last Find: the row, null for a property of the table, and its value.
    const FieldRow* m_found = nullptr;
    FieldValue m_value;
};
