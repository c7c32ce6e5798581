// Records the displayed states of a page's controls when they last matched the selection, and the values of the
// selection at that time.
//
// Text has less precision than the value: 1.23457 for 1.23456789. Therefore, a control that displays the same text as
// when it was loaded or written does not count as edited, regardless of what happened in between, and its member
// receives the exact value.
#pragma once

#include <afxwin.h>

#include <any>
#include <map>
#include <optional>
#include <string>
#include <type_traits>

#include "orlo/binding/indeterminate.h"

class CGraphicPropertyPage;

class LoadedControls {
public:
    explicit LoadedControls(CGraphicPropertyPage& page) : m_page(page) {}
    static LoadedControls& Of(CGraphicPropertyPage& page);

    // Returns whether the control displays the same as when it last matched the selection.
    bool IsUnchanged(unsigned int nID) const;

    // While loading: records the property's value, which the control is about to display. Notifications of controls do
    // not count as edits until the exchange ends.
    template <class T>
    void Load(CDataExchange* pDX, unsigned int nID, const std::string& property, const T& value) {
        Show(pDX, nID, property);
        m_values[property] = value;
    }
    // Records another control that displays the property.
    void Show(CDataExchange* pDX, unsigned int nID, const std::string& property);
    // Records the displayed state of a control that is not bound to a property, when the page is activated.
    void ShowUnbound(unsigned int nID);

    // While saving: if the user has not edited the control, sets the value to the loaded one and returns true. An
    // edited control that shows the asterisks for differing numbers sets the value to the marker.
    template <class T>
    bool RestoreUnedited(unsigned int nID, const std::string& property, T& value) {
        if (!IsEdited(nID)) {
            Restore(property, value);
            return true;
        }
        m_controls[nID].property = property;
        if constexpr (std::is_floating_point_v<T>)
            if (ShowsStars(nID)) value = Indeterminate<T>::Value();
        return false;
    }
    template <class T>
    void Restore(const std::string& property, T& value) const {
        const auto found = m_values.find(property);
        if (found == m_values.end()) return;
        if (const T* loaded = std::any_cast<T>(&found->second)) value = *loaded;
    }

    // Records the value written to the selection, which all controls of the property now display.
    template <class T>
    void Write(const std::string& property, const T& value) {
        m_values[property] = value;
        RecordControlsOf(property);
    }

private:
    class Loading;
    struct Control {
        std::string property;
        std::optional<std::string> shown;
    };

    HWND Window(unsigned int nID) const;
    void RecordControl(unsigned int nID);
    void RecordControlsOf(const std::string& property);
    bool IsEdited(unsigned int nID) const;
    bool ShowsStars(unsigned int nID) const;

    CGraphicPropertyPage& m_page;
    std::map<unsigned int, Control> m_controls;
    std::map<std::string, std::any> m_values; // by property name
    Loading* m_loading = nullptr;             // of the current exchange
};
