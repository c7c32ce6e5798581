// WriteOutcome: collects and reports the failures of a write-back.

#include "orlo/frame/write_outcome.h"

#include <afxwin.h>

#include <utility>

#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/page_state.h"
#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"

WriteOutcome::WriteOutcome(CGraphicPropertyPage* page)
    : m_page(page), m_before(std::exchange(PageState::Of(*page).outcome, this)),
      m_countsChanged(page->GetSheet() != nullptr && page->GetSheet()->HasWrittenCallback()) {
    if (m_before != nullptr) m_changed.swap(m_before->m_changed);
}

WriteOutcome::~WriteOutcome() {
    PageState::Of(*m_page).outcome = m_before;
}

WriteOutcome* WriteOutcome::Of(CGraphicPropertyPage& page) {
    return PageState::Of(page).outcome;
}

void WriteOutcome::AddFailure(const char* text) {
    if (m_failure.IsEmpty()) m_failure = *text != '\0' ? CString(text) : LibraryText(AFX_IDP_INTERNAL_FAILURE);
}

void WriteOutcome::Report(int total) const {
    CString message;
    if (!m_unchanged.empty()) message.Format(LibraryText(IDS_NOT_CHANGED), static_cast<int>(m_unchanged.size()), total);
    if (!message.IsEmpty() && !m_failure.IsEmpty()) message += '\n';
    message += m_failure;
    if (!message.IsEmpty()) AfxMessageBox(message, MB_ICONEXCLAMATION);
    CGraphicPropertySheet* sheet = m_page->GetSheet();
    if (sheet != nullptr && (!m_changed.empty() || !m_unchanged.empty()))
        sheet->OnWritten(static_cast<int>(m_changed.size()), static_cast<int>(m_unchanged.size()));
}
