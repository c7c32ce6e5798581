// Message map of CountingDialog.

#include "control_dialog.h"

BEGIN_MESSAGE_MAP(CountingDialog, CDialog)
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
END_MESSAGE_MAP()
