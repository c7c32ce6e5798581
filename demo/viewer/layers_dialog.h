// The dialog of layers: which are on, frozen or locked, for one or several at a time. The drawing shows each change at once;
// Cancel takes all of them back.
#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

#include "demo/viewer/likeness.h"
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
    DECLARE_MESSAGE_MAP()

private:
    struct Layer {
        LayerCount layer;
        uint32_t flagsBefore;
    };

    bool Is(size_t layer, size_t state) const;
    void Set(size_t layer, size_t state, bool on);
    void Toggle(size_t state, const std::vector<size_t>& layers);
    std::vector<size_t> SelectedLayers() const;
    void ShowRow(size_t layer);
    void ShowStates();

    DrawingStruct* m_drawing;
    std::function<void()> m_changed;
    std::vector<Layer> m_layers; // the rows of the list
    HWND m_list = nullptr;
};
