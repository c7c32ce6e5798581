// LoadedControls, and the scope in which a page is being loaded.

#include "orlo/frame/loaded_controls.h"

#include <memory>
#include <utility>
#include <vector>

#include "orlo/frame/control_state.h"
#include "orlo/frame/page_state.h"

// Lives as long as the exchange, because the controls display their values only when it ends.
class LoadedControls::Loading : public CObject {
public:
    explicit Loading(LoadedControls& controls)
        : m_controls(controls), m_before(std::exchange(controls.m_page.m_bInitializing, 1)) {
        controls.m_loading = this;
    }
    ~Loading() override {
        for (const unsigned int nID : m_shown)
            m_controls.RecordControl(nID);
        m_controls.m_loading = nullptr;
        m_controls.m_page.m_bInitializing = m_before;
    }
    void Add(unsigned int nID) { m_shown.push_back(nID); }

private:
    LoadedControls& m_controls;
    int m_before;
    std::vector<unsigned int> m_shown;
};

LoadedControls& LoadedControls::Of(CGraphicPropertyPage& page) {
    return PageState::Of(page).loaded;
}

HWND LoadedControls::Window(unsigned int nID) const {
    return PageState::Of(m_page).Control(nID);
}

bool LoadedControls::IsUnchanged(unsigned int nID) const {
    const auto found = m_controls.find(nID);
    return found != m_controls.end() && found->second.shown && ShownState(Window(nID)) == found->second.shown;
}

void LoadedControls::Show(CDataExchange* pDX, unsigned int nID, const std::string& property) {
    if (m_loading == nullptr) pDX->Keep(std::make_unique<Loading>(*this));
    m_controls[nID].property = property;
    m_loading->Add(nID);
    m_page.SetControlStatus(nID, 0);
}

void LoadedControls::ShowUnbound(unsigned int nID) {
    if (m_controls[nID].property.empty()) RecordControl(nID);
}

// If memory runs out, the control counts as edited at the first change.
void LoadedControls::RecordControl(unsigned int nID) {
    std::optional<std::string>& shown = m_controls.at(nID).shown;
    try {
        shown = ShownState(Window(nID));
    } catch (...) {
        shown.reset();
    }
}

void LoadedControls::RecordControlsOf(const std::string& property) {
    for (const auto& [nID, control] : m_controls)
        if (control.property == property) RecordControl(nID);
}

bool LoadedControls::IsEdited(unsigned int nID) const {
    return m_page.IsEdited(nID) != 0;
}

bool LoadedControls::ShowsStars(unsigned int nID) const {
    return ShownState(Window(nID)) == std::string(kIndeterminateStars);
}
