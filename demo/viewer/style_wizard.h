// The wizard that makes a style after the selected graphics, in three steps: name, parts, summary.
#pragma once

#include <afxwin.h>

class Document;

// Runs the wizard over the selection of the document. True: it has made the style, which is now the current one.
bool MakeStyleByWizard(CWnd* owner, Document& document);
