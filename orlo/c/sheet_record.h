// A sheet that is open through the C interface: its record, the framework around it, and its controls.
#pragma once

#include <afxwin.h>
#include <orlo_c.h>

#include <memory>

#include "orlo/c/framework_scope.h"
#include "orlo/frame/graphic_property_sheet.h"

namespace orlo {

class SheetRecord {
public:
    // Copies the caller's record, which can be of an earlier version. Throws CallError if it is not valid.
    explicit SheetRecord(const OrloSheet* record);
    virtual ~SheetRecord();
    SheetRecord(const SheetRecord&) = delete;
    SheetRecord& operator=(const SheetRecord&) = delete;

    const OrloSheet& Get() const { return m_record; }
    CWnd* Owner() { return m_owner.Get(); }
    void Select(GraphicStruct* selection) { m_record.selection = selection; }
    bool HasGraphics() const;
    // Returns a sheet with all its pages. Throws CallError if a page is not valid.
    std::unique_ptr<CGraphicPropertySheet> NewSheet();

    // Returns whether a control is in the sheet.
    virtual bool Contains(HWND control) const;

private:
    OrloSheet m_record;
    std::shared_ptr<FrameworkScope> m_framework;
    OwnerObject m_owner;
};

} // namespace orlo
