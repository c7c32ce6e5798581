// Owns a summary.
#pragma once

#include <memory>
#include <string>

#include "orlo/summary/summary_info.h"

struct FreeSummary {
    void operator()(CPropertySet* set) const { OleStdFreeSummaryInfo(&set); }
};
using OwnedSummary = std::unique_ptr<CPropertySet, FreeSummary>;

inline OwnedSummary SummaryOf(const std::string& title) {
    OwnedSummary summary(OleStdInitSummaryInfo(1252));
    OleStdSetStringProperty(summary.get(), PIDSI_TITLE, title.c_str());
    return summary;
}
