// What the controls of a page showed when they last agreed with the selection, and the values that the selection had
// then.
//
// The text of a field says less than its value: 1.23457 for 1.23456789. So a control that shows what it showed after it
// was loaded, or written, has not been edited, whatever has happened in between, and its member stands for that value
// to the last bit.
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

    // Whether the control shows what it last agreed on with the selection.
    bool Agrees(unsigned int nID) const;

    // Loading: the value of the property, which the control is about to show. Until the exchange ends, notifications of
    // controls do not count as edits.
    template <class T>
    void Load(CDataExchange* pDX, unsigned int nID, const std::string& property, const T& value) {
        Show(pDX, nID, property);
        m_values[property] = value;
    }
    // The same for a further control of a property.
    void Show(CDataExchange* pDX, unsigned int nID, const std::string& property);
    // Activating the page: what a control shows that no property has been bound to.
    void ShowUnbound(unsigned int nID);

    // Saving: sets the value to the loaded one and returns true if the user has not edited the control. The stars that
    // stand for numbers that differ are no number: an edited control that shows them sets the value to the marker.
    template <class T>
    bool Keep(unsigned int nID, const std::string& property, T& value) {
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

    // The selection has this value now, as all controls of the property show it.
    template <class T>
    void Write(const std::string& property, const T& value) {
        m_values[property] = value;
        NoteControlsOf(property);
    }

private:
    class Loading;
    struct Control {
        std::string property;
        std::optional<std::string> shown;
    };

    HWND Window(unsigned int nID) const;
    void Note(unsigned int nID);
    void NoteControlsOf(const std::string& property);
    bool IsEdited(unsigned int nID) const;
    bool ShowsStars(unsigned int nID) const;

    CGraphicPropertyPage& m_page;
    std::map<unsigned int, Control> m_controls;
    std::map<std::string, std::any> m_values; // by property
    Loading* m_loading = nullptr;             // of the exchange in progress
};
