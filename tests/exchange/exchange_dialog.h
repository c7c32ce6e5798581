// A real dialog with one control of each kind, and exchanges in both directions.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include <string>

#include "exchange.h"
#include "orlo/entry/entry.h"
#include "support/message_box_watcher.h"

class ExchangeDialog : public ::testing::Test {
protected:
    explicit ExchangeDialog(UINT nIDTemplate = IDD_EXCHANGE) {
        PropPageInit();
        EXPECT_TRUE(m_dialog.Create(nIDTemplate));
    }
    ~ExchangeDialog() override { m_dialog.DestroyWindow(); }

    HWND Control(int id) const { return ::GetDlgItem(m_dialog.m_hWnd, id); }
    std::string Text(int id) const {
        CString text;
        m_dialog.GetDlgItem(id)->GetWindowText(text);
        return std::string(text);
    }
    void SetText(int id, const char* text) { m_dialog.SetDlgItemText(id, text); }
    LRESULT Send(int id, UINT message, WPARAM wParam = 0, const void* lParam = nullptr) {
        return ::SendMessageA(Control(id), message, wParam, reinterpret_cast<LPARAM>(lParam));
    }
    std::string ComboItem(int id, int index) {
        char text[256] = "";
        Send(id, CB_GETLBTEXT, static_cast<WPARAM>(index), text);
        return text;
    }

    static std::string Prompt(UINT nID) {
        CString text;
        text.LoadString(nID);
        return std::string(text);
    }
    // Returns whether the exchange was ended by Fail.
    template <class Exchange>
    static bool Fails(Exchange exchange) {
        try {
            exchange();
        } catch (CUserException* exception) {
            exception->Delete();
            return true;
        }
        return false;
    }

    CDialog m_dialog;
    CDataExchange m_save{&m_dialog, TRUE};
    CDataExchange m_load{&m_dialog, FALSE};
};
