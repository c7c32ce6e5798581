// The layers dialog: turns layers on and off, freezes or locks them, one or several at a time. The drawing shows each
// change immediately; Cancel undoes all of them. Clicking a column's title sorts by it, and the Find field filters
// layers by name; Ctrl+A selects all of them. The list is virtual, so that it can show thousands of layers.
#pragma once

#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

#include "demo/viewer/layer_states.h"
#include "demo/viewer/selection_summary.h"
#include "orlo/host/records.h"

class CLayersDialog : public CDialog {
public:
    // changed is called after each change of a layer.
    CLayersDialog(CWnd* owner, DrawingStruct* drawing, std::function<void()> changed);

protected:
    BOOL OnInitDialog() override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    void OnCancel() override;
    afx_msg void OnState(UINT command);
    afx_msg void OnFind();
    afx_msg LRESULT OnShowStates(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    // Layers are indices into m_layers.
    bool Is(size_t layer, size_t state) const;
    void Set(size_t layer, size_t state, bool on);
    void Toggle(size_t state, const std::vector<size_t>& layers);
    std::vector<size_t> SelectedLayers() const;
    std::string CellText(size_t layer, int column) const;
    uint32_t ColorOf(size_t layer) const;
    bool IsBefore(size_t a, size_t b) const;
    void AddColumns();
    // Rebuilds the rows and keeps the selected layers, or else selects the first row.
    void ShowRows();
    void ShowStates();
    void OnRowChanged();
    void OnClick(POINT point);
    LRESULT DrawCell(const NMHDR& header) const;

    DrawingStruct* m_drawing;
    std::function<void()> m_changed;
    LayerStates m_before;
    std::vector<LayerCount> m_layers;
    std::vector<size_t> m_rows; // the layers shown by the list, in its order
    int m_sortColumn = 0;
    bool m_sortsDown = false;
    bool m_isShowing = false; // a message to draw the rows and update the check boxes has been posted
    HWND m_list = nullptr;
};
