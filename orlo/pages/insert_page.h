// The Block Insertion page: position, scale and rotation of the selected insertions. It works on their vertices, not on
// named properties: see insert_parts.h.
//
// A field that the user has not edited, or that shows "*****", writes nothing and is not checked.
#pragma once

#include "orlo/frame/graphic_property_page.h"
#include "orlo/pages/insert_preview.h"
#include "orlo/resources/resource.h"

class CInsertPage : public CGraphicPropertyPage {
    DECLARE_DYNAMIC(CInsertPage)

public:
    static constexpr unsigned int kTemplate = IDD_INSERT_PAGE;

    CInsertPage();
    ~CInsertPage() override;

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    // Creates an insertion of a pyramid with lettered axes, a block of the current drawing for as long as a page uses
    // it.
    void* CreatePreviewGraphic() override;
    // Reports at once a text that is not a number or out of range, but waits while it may still become one: "", "-",
    // ".", "1e"; a rotation that begins with a number, as "12d30", is reported when its field is left.
    void SetPreviewProperties(int bAll) override;

    // Merges the parts of all insertions of the set into the members; without one the members stay as they are.
    void LoadInsertParts(int bPreview);
    // Writes the members to all insertions of the set. Each insertion keeps its own value where a member is
    // indeterminate and, in the selection, where the user has not edited the control.
    void ApplyInsertParts(int bPreview);

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    struct Field;
    static const Field kFields[9];

    void ExchangeField(CDataExchange* pDX, const Field& field);
    bool IsTyped(const Field& field) const;
    bool HasFocus(const Field& field) const;

    double m_dScaleX, m_dScaleY, m_dScaleZ;
    double m_dRotateX, m_dRotateY, m_dRotateZ; // radians
    double m_dPositionX, m_dPositionY, m_dPositionZ;
    InsertPreview m_preview;
};
