// A page with one number, used by most tests of the frame.
#pragma once

#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "support/test_sheet.h"

struct WidthPage {
    explicit WidthPage(TestSheet& sheet)
        : page(sheet.Add([this](CDataExchange* pDX) {
              DDP_Text(pDX, kEdit, width, "Width");
              DDX_Text(1, pDX, kEdit, width);
              DDP_PostProcessing(pDX);
          })) {}
    WidthPage(const WidthPage&) = delete;
    WidthPage& operator=(const WidthPage&) = delete;

    double width = 0;
    ExchangePage& page;
};
