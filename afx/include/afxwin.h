// Includes everything that a program with windows and dialogs needs.
#pragma once

#include <afx.h>
#include <afxapp.h>
#include <afxcoll.h>
#include <afxctl.h>
#include <afxdialog.h>
#include <afxgdi.h>
#include <afxmsg.h>
#include <afxres.h>
#include <afxwnd.h>
