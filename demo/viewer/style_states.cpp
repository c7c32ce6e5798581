// Recorded states of styles.

#include "demo/viewer/style_states.h"

#include <algorithm>
#include <utility>

StyleStates::StyleStates(StyleBook& styles) : m_styles(&styles) {
    for (const uint16_t id : styles.All())
        m_all.push_back({styles.Name(id), styles.PartsOf(id), styles.Copy(id)});
    if (styles.Current()) m_current = styles.Name(styles.Current());
}

void StyleStates::Restore() const {
    for (const uint16_t id : m_styles->All()) {
        const auto isThis = [&](const Style& style) { return style.name == m_styles->Name(id); };
        if (std::none_of(m_all.begin(), m_all.end(), isThis)) m_styles->Remove(id);
    }
    for (const Style& style : m_all) {
        if (const uint16_t id = m_styles->Find(style.name))
            m_styles->Restore(id, style.content.get());
        else
            m_styles->Readd(style.name, style.content.get(), style.parts);
    }
    m_styles->SetCurrent(m_styles->Find(m_current));
}

bool StyleStates::IsCurrent() const {
    const std::vector<uint16_t> now = m_styles->All();
    return now.size() == m_all.size() && std::all_of(m_all.begin(), m_all.end(), [&](const Style& style) {
               const uint16_t id = m_styles->Find(style.name);
               return id && m_styles->HasContent(id, style.content.get());
           });
}

std::unique_ptr<UndoableChange> StyleStates::ChangeSince(StyleStates before) {
    if (before.IsCurrent()) return nullptr;
    StyleStates now(*before.m_styles);
    return std::make_unique<StateChange<StyleStates>>("styles", std::move(before), std::move(now));
}
