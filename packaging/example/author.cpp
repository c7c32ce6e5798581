// Prints the author of a document: a program that uses neither the sheets nor a drawing database.
#include <cstdio>

#include "orlo/summary/ole_summary.h"
#include "orlo/summary/summary_info.h"
#include "orlo/win/com_owner.h"

int main(int count, char** arguments) {
    if (count != 2) return 2;
    orlo::Owned<IStorage> document;
    CPropertySet* summary = nullptr;
    if (FAILED(GetFileSummaryInfo(arguments[1], orlo::Receive(document), &summary))) return 1;
    const char* author = OleStdGetStringProperty(summary, PIDSI_AUTHOR);
    std::puts(author != nullptr ? author : "");
    OleStdFreeSummaryInfo(&summary);
    return 0;
}
