// The Block Insertion page: position, scale and rotation of the selected insertions. It works on their vertices, not on named
// properties: see insert_parts.h.
//
// What counts is what the user sees: a field whose text has come back to what it was, or that shows "*****", writes nothing and
// is not checked, whatever has been typed in between.
#pragma once

#include "orlo/frame/graphic_property_page.h"
#include "orlo/resources/resource.h"

class CInsertPage : public CGraphicPropertyPage {
    DECLARE_DYNAMIC(CInsertPage)

public:
    static constexpr unsigned int kTemplate = IDD_INSERT_PAGE;

    CInsertPage();
    // Takes the preview's block out of the current drawing.
    ~CInsertPage() override;

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    // An insertion of a pyramid with lettered axes, a block of the current drawing for as long as the page lives.
    void* CreatePreviewGraphic() override;
    // Reports at once a text that is not a number or out of range, but waits while it may still become one: "", "-", ".", "1e".
    void SetPreviewProperties(int bAll) override;

    // Merges the parts of all insertions of the set into the members; without one the members stay as they are.
    void LoadInsertParts(int bPreview);
    // Writes the members to all insertions of the set. Each insertion keeps its own value where a member is indeterminate and,
    // in the selection, where the user has not changed the control or has restored its first text.
    void ApplyInsertParts(int bPreview);

private:
    struct Field;
    static const Field kFields[9];

    // What a field showed, and stood for, when it last agreed with the selection.
    struct Agreed {
        CString text;
        double value;
    };

    static size_t IndexOf(const Field& field);
    CString TextOf(const Field& field) const;
    bool ShowsNewText(const Field& field) const;
    void ExchangeField(CDataExchange* pDX, const Field& field);
    void SaveField(CDataExchange* pDX, const Field& field);
    void NoteTexts();

    double m_dScaleX, m_dScaleY, m_dScaleZ;
    double m_dRotateX, m_dRotateY, m_dRotateZ; // radians
    double m_dPositionX, m_dPositionY, m_dPositionZ;
    Agreed m_agreed[9]; // by field
};
