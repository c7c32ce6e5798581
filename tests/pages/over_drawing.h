// All graphics of a real drawing in a sheet.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

#include "drawcore/application.h"
#include "drawcore/drawing.h"
#include "drawcore/dxf.h"
#include "drawcore/selection.h"
#include "drawcore/undo.h"
#include "orlo/entry/entry.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "support/host_frame.h"
#include "support/sheet_driver.h"

class OverDrawing : public ::testing::Test {
protected:
    // page: template of the page that scripts begin on.
    OverDrawing(const wchar_t* path, unsigned int page) : m_page(page) {
        char message[256] = "";
        drawing = ::DrawingOpenDxf(path, nullptr, message, sizeof message);
        EXPECT_NE(nullptr, drawing) << message;
        ::AppSetCurrentDrawing(drawing);
        selection = ::SelectionNew();
        frame = std::make_unique<HostFrame>(drawing);
        ::PropPageInit();
        uint32_t position;
        GraphicStruct* root = ::DrawingGetRoot(drawing);
        for (GraphicStruct* graphic = ::GraphicFirst(root, &position, 1, kAllGraphics); graphic != nullptr;
             graphic = ::GraphicNext(root, &position, 1, kAllGraphics)) {
            ::SelectionAdd(selection, graphic);
            graphics.push_back(graphic);
        }
    }
    ~OverDrawing() override {
        frame.reset();
        ::GraphicDispose(&selection);
        ::DrawingDispose(&drawing);
    }

    int RunSheet(std::function<void(SheetDriver&)> script) {
        const std::unique_ptr<CGraphicPropertySheet> sheet(
            ::InitGraphicPropertySheet(frame.get(), nullptr, drawing, selection, kAllGraphics));
        for (GraphicStruct* graphic : graphics)
            ::AddGraphicPropertyPage(nullptr, graphic, sheet.get());
        return SheetDriver().Run(*sheet, [&](SheetDriver& user) {
            const int page = sheet->GetPageIndex(sheet->FindPage(m_page));
            ASSERT_GT(page, 0);
            user.SelectPage(page);
            script(user);
        });
    }

    DrawingStruct* drawing;
    GraphicStruct* selection;
    std::unique_ptr<HostFrame> frame;
    std::vector<GraphicStruct*> graphics;

private:
    unsigned int m_page;
};
