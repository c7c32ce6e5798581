// Lays out the rows of a page: columns, groups, labels before their fields.
#pragma once

#include <afxwin.h>

#include <memory>
#include <vector>

#include "orlo/pages/dialog_writer.h"
#include "orlo/pages/field_kinds.h"

struct FieldLayout {
    std::vector<DialogItem> items;
    CSize size; // in dialog units
};

FieldLayout LayOutFields(const std::vector<std::unique_ptr<Field>>& fields);
