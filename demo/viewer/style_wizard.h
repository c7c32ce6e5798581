// The wizard that creates a style from the selected graphics, in three steps: name, parts, summary.
#pragma once

#include <afxwin.h>

class Document;

// Runs the wizard over the document's selection. Returns true if it created a style, which is then the current one.
bool MakeStyleByWizard(CWnd* owner, Document& document);
