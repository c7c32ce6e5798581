// The Block Insertion page: position, scale and rotation of the selected insertions. It edits their vertices rather
// than named properties; see insert_parts.h.
//
// A field that the user has not edited, or that shows "*****", is neither validated nor written.
#pragma once

#include "orlo/frame/graphic_property_page.h"
#include "orlo/pages/insert_preview.h"
#include "orlo/resources/resource.h"

class CInsertPage : public CGraphicPropertyPage {
    DECLARE_DYNAMIC(CInsertPage)

public:
    static constexpr unsigned int kTemplate = IDD_INSERT_PAGE;

    CInsertPage();

    void DoDataExchange(CDataExchange* pDX) override;
    // Creates an insertion of a pyramid with lettered axes, a block that exists in the current drawing while a page
    // uses it.
    void* CreatePreviewGraphic() override;
    // Reports text that is not a number or out of range immediately, unless it may become a valid number: "", "-", ".",
    // "1e". A rotation that begins with a number, such as "12d30", is reported when its field is left.
    void SetPreviewProperties(int bAll) override;

    // Merges the parts of all insertions of the set into the members, which are unchanged if there are none.
    void LoadInsertParts(int bPreview);
    // Writes the members to all insertions of the set. An insertion keeps its value where a member is indeterminate
    // and, in the selection, where the user has not edited the control.
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
    double m_dRotateX, m_dRotateY, m_dRotateZ; // in radians
    double m_dPositionX, m_dPositionY, m_dPositionZ;
    InsertPreview m_preview;
};
