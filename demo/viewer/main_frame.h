// The main window: menu, view, status bar, and the host's side of the control protocol.
#pragma once

#include <afxwin.h>

#include <memory>
#include <string>
#include <vector>

#include "demo/viewer/dialog_messages.h"
#include "demo/viewer/document.h"
#include "demo/viewer/drawing_view.h"
#include "demo/viewer/field_hints.h"
#include "demo/viewer/properties_pane.h"
#include "demo/viewer/selection_summary.h"
#include "demo/viewer/splitter.h"
#include "demo/viewer/status_bar.h"

class CMainFrame : public CFrameWnd, private DrawingViewClient {
    DECLARE_DYNAMIC(CMainFrame)
public:
    CMainFrame();

    // Returns false if the window could not be created; the object is then deleted.
    BOOL Create();
    // Shows the window at its position from the last session. show is the show command that the system requested, such
    // as SW_SHOWNORMAL.
    void ShowFirst(int show);

    // Opens a drawing (path in UTF-8) instead of the current one. If it cannot be opened, or if the user cancels at the
    // prompt about unsaved changes, keeps the current one and reports the reason.
    bool Open(const std::string& path);
    // Shows a drawing that is already open, without a prompt for the previous one.
    void Show(std::unique_ptr<Document> document);
    // Saves the drawing to a file, which becomes the drawing's file. Returns false if the user canceled or if saving
    // failed, which has then been reported.
    bool Save(const std::string& path);
    Document* GetDocument() const { return m_document.get(); }
    CDrawingView& View() { return m_view; }
    CPropertiesPane& Pane() { return m_pane; }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL PreCreateWindow(CREATESTRUCTA& cs) override;

    afx_msg void OnClose();
    afx_msg LRESULT OnQueryEndSession(WPARAM wParam, LPARAM lParam);
    afx_msg int OnCreate(LPCREATESTRUCTA create);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg LRESULT OnActivate(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSetFocus(CWnd* before);
    afx_msg void OnDropFiles(HDROP drop);
    afx_msg LRESULT OnTyped(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnHourglassEnds(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetMinMaxInfo(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSettingChange(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInitMenuPopup(WPARAM wParam, LPARAM lParam);

    afx_msg void OnFileOpen();
    afx_msg void OnRecentFile(UINT command);
    afx_msg void OnFileSave();
    afx_msg void OnFileSaveAs();
    afx_msg void OnFileWarnings();
    afx_msg void OnAppExit();
    afx_msg void OnEditUndo();
    afx_msg void OnEditRedo();
    afx_msg void OnSelectAll();
    afx_msg void OnSelectNext();
    afx_msg void OnSelectPrevious();
    afx_msg void OnSelectNone();
    afx_msg void OnSelectSimilar();
    afx_msg void OnSelectKind(UINT command);
    afx_msg void OnSelectLayer(UINT command);
    afx_msg void OnProperties();
    afx_msg void OnNewStyle();
    afx_msg void OnStyleProperties();
    afx_msg void OnApplyStyle();
    afx_msg void OnZoomIn();
    afx_msg void OnZoomOut();
    afx_msg void OnFitAll();
    afx_msg void OnFitSelection();
    afx_msg void OnDarkBackground();
    afx_msg void OnLightBackground();
    afx_msg void OnLineWeights();
    afx_msg void OnLayers();
    afx_msg void OnDecimalMark(UINT command);
    afx_msg void OnPropertiesPane();
    afx_msg void OnSwitchPane();
    afx_msg void OnHelpKeys();
    afx_msg void OnHelpGuide();
    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    bool MayChangeSelection() override;
    void OnDrawingChanging() override;
    void OnSelectionChanged() override;
    void OnPointerMoved(WorldPoint point) override;
    void OnEditProperties() override;

    bool SaveTo(const std::string& path, bool overChanged);
    // Returns true if the document can be closed: saved, or the user chose to discard it.
    bool CanCloseDocument();
    void ShowOpenedDocument();
    void ShowTitle();
    void ShowSelected();
    void ShowChange();
    void ShowApplied(int changed);
    void ShowUndone(const std::string& message);
    void DeselectUnselectable();
    bool OnDialogMessage(MSG& message);
    bool CanDo(UINT command) const;
    bool IsChosen(UINT command) const;
    void ArrangeClient();
    int PaneWidth(const CRect& client) const;
    void SizePane(int left, bool done);
    int Scaled(int at96) const; // pixels for the window's monitor
    void ShowSettings();
    static int MarkOf(UINT command);
    void ShowDecimalMark();
    void SaveWindowPlace() const;
    void SetBackground(bool light); // of view and previews
    void ChooseBackground(bool light);
    bool OpenMenuByKey(const MSG& message);
    bool IsKeyOfFocus(const MSG& message) const;
    std::vector<KindCount> SelectedKinds() const;
    std::vector<LayerCount> Layers() const;
    bool FillSubmenu(HMENU menu);

    CDrawingView m_view;
    CStatusBar m_status;
    std::unique_ptr<Document> m_document;
    CPropertiesPane m_pane;
    FieldHints m_hints;
    DialogMessages m_dialogMessages;
    CSplitter m_splitter;
    int m_paneWidth = 0;    // in pixels at 96 dpi as set by the user; 0: the width of its sheet
    HACCEL m_paneKeys;      // owned by the system until the program ends
    bool m_isBusy = false;  // opening or saving a file
    HWND m_focus = nullptr; // the focus in the pane when the window was deactivated
};
