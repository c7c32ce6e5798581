// One page of the library in a sheet for a kit's graphics, for the tests of the Pen, Brush and Text pages.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <string>
#include <vector>

#include "drawcore/application.h"
#include "drawcore/drawing.h"
#include "drawcore/table.h"
#include "drawcore/units.h"
#include "orlo/entry/entry.h"
#include "orlo/host/host.h"
#include "orlo/resources/resource.h"
#include "support/host_frame.h"
#include "support/message_box_watcher.h"
#include "support/pixels.h"
#include "support/test_sheet.h"

class PageOverKit : public ::testing::Test {
protected:
    explicit PageOverKit(unsigned int page) : frame(kit.Drawing()), m_page(page) {}
    ~PageOverKit() override {
        ::AppSetINIFileName(nullptr);
        ::DeleteFileA(m_ini.c_str());
    }

    using Script = std::function<void(SheetDriver&, CGraphicPropertyPage&)>;
    // Opens the sheet on the page and returns the result of DoModal.
    int Run(const Script& script) {
        TestSheet sheet(kit);
        for (size_t i = 0; i < kit.Size(); ++i)
            ::AddGraphicPropertyPage(nullptr, kit[i].graphic, &sheet.Sheet());
        if (addPages) addPages(sheet.Sheet());
        return sheet.Run([&](SheetDriver& user) {
            auto* page = sheet.Sheet().FindPage(m_page);
            ASSERT_NE(page, nullptr);
            sheet.Sheet().SetActivePage(page);
            script(user, static_cast<CGraphicPropertyPage&>(*page));
        });
    }
    // Presses OK at the end, which must succeed.
    void RunOk(const SheetDriver::Script& script) {
        EXPECT_EQ(Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                      script(user);
                      user.Ok();
                  }),
                  IDOK);
    }

    struct Edit {
        const char* property;
        SheetDriver::Script edit;
        KitValue expected;
    };
    // Runs each edit separately and checks that its property changes in all graphics, and no other property does.
    void ExpectEachChangesOneProperty(const std::vector<Edit>& edits) {
        for (const Edit& edit : edits) {
            SCOPED_TRACE(edit.property);
            std::vector<std::map<std::string, KitValue>> before;
            for (size_t i = 0; i < kit.Size(); ++i)
                before.push_back(kit[i].properties);
            RunOk(edit.edit);
            for (size_t i = 0; i < kit.Size(); ++i) {
                auto expected = before[i];
                expected[edit.property] = edit.expected;
                for (const auto& [name, value] : expected) {
                    EXPECT_NEAR(value.number, kit[i].Number(name), 1e-9) << name;
                    EXPECT_EQ(value.text, kit[i].Text(name));
                }
                EXPECT_EQ(kit[i].writes.size(), 1u) << "no other property is written";
                kit[i].properties = before[i];
                kit[i].writes.clear();
            }
        }
    }

    // Returns what a control shows: text, state of a check box, or the key or text of the selected item.
    static std::string Shown(SheetDriver& user, int id) {
        const HWND control = user.Control(id);
        const LRESULT code = ::SendMessageA(control, WM_GETDLGCODE, 0, 0);
        if (code & (DLGC_BUTTON | DLGC_RADIOBUTTON)) return std::to_string(user.Check(id));
        if (user.Selection(id) < 0 || code & (DLGC_STATIC | DLGC_HASSETSEL)) return user.Text(id);
        char text[300] = "";
        if (user.IsCombo(id)) return KeyOf(user.ItemText(id, user.Selection(id)));
        ::SendMessageA(control, LB_GETTEXT, user.Selection(id), reinterpret_cast<LPARAM>(text));
        return KeyOf(text);
    }
    static std::vector<std::string> Shown(SheetDriver& user, std::initializer_list<int> ids) {
        std::vector<std::string> texts;
        for (const int id : ids)
            texts.push_back(Shown(user, id));
        return texts;
    }
    // Returns a property of the preview graphic.
    template <class T = double>
    static T Previewed(CGraphicPropertyPage& page, const char* property) {
        T value{77};
        page.GetPropText(property, &value, 1);
        return value;
    }
    // Draws the preview on white.
    static void DrawPreview(CGraphicPropertyPage& page, Pixels& pixels, int width, int height) {
        const orlo::host::OwnedViewport viewport(::ViewportNewEx());
        pixels.Clear(RGB(255, 255, 255));
        CRect rect(0, 0, width, height);
        page.DrawPreview(CDC::FromHandle(pixels.DC()), viewport.get(), rect);
    }
    void WriteIni(const std::string& text) {
        char folder[MAX_PATH];
        ::GetTempPathA(sizeof folder, folder);
        m_ini = folder + std::string("orlo_page_test.ini");
        std::ofstream(m_ini) << text;
        ::AppSetINIFileName(m_ini.c_str());
    }

    static constexpr unsigned int kRed = 0x0000FF, kBlue = 0xFF0000;
    static constexpr unsigned int kDarkest = 0x333333; // the first of the numbered colors in color order
    GraphicKit kit;
    HostFrame frame;
    std::function<void(CGraphicPropertySheet& sheet)> addPages; // besides the library's

private:
    static std::string KeyOf(const std::string& item) { return item.substr(0, item.find('\t')); }

    unsigned int m_page;
    std::string m_ini;
};
