// A host in C99 with a page of its own: opens the drawing named on the command line and shows the properties of all its
// graphics, with a price that only the host knows.

#include <stdio.h>
#include <windows.h>

#include <drawcore/application.h> // the reference database; your host includes its own headers here
#include <drawcore/drawing.h>
#include <drawcore/dxf.h>
#include <orlo_c.h>

#include "orlo/host/graphic.h"

enum { kPricePage = 1, kMaxPrices = 10000 };

// The host's own data: a price for each graphic that has one.
typedef struct Prices {
    struct GraphicStruct* graphics[kMaxPrices];
    double prices[kMaxPrices];
    int count;
} Prices;

static double* PriceOf(Prices* prices, struct GraphicStruct* graphic) {
    int i;
    for (i = 0; i < prices->count; ++i)
        if (prices->graphics[i] == graphic) return &prices->prices[i];
    return NULL;
}

static int32_t ORLO_CALL GetPrice(void* context, struct GraphicStruct* graphic, uint32_t field, OrloValue* value) {
    const double* price = PriceOf(context, graphic);
    (void)field;
    if (price != NULL) value->number = *price;
    return price != NULL;
}

static int32_t ORLO_CALL SetPrice(void* context, struct GraphicStruct* graphic, uint32_t field,
                                  const OrloValue* value) {
    double* price = PriceOf(context, graphic);
    (void)field;
    if (price != NULL) *price = value->number;
    return price != NULL;
}

static void Collect(Prices* prices, struct GraphicStruct* set) {
    uint32_t position;
    struct GraphicStruct* graphic;
    for (graphic = GraphicFirst(set, &position, 1, kOrloAllGraphics); graphic != NULL && prices->count < kMaxPrices;
         graphic = GraphicNext(set, &position, 1, kOrloAllGraphics)) {
        prices->graphics[prices->count] = graphic;
        prices->prices[prices->count++] = 10.0;
    }
}

static int ShowProperties(HWND window, DrawingStruct* drawing, Prices* prices) {
    const OrloField fields[] = {
        {.size = sizeof(OrloField),
         .kind = kOrloFieldNumber,
         .flags = kOrloFieldByCallback,
         .label = "&Price:",
         .unit = "EUR",
         .help = "Price of one piece",
         .max = 1e6},
        {.size = sizeof(OrloField), .kind = kOrloFieldLayer, .label = "&Layer:", .property = kPropLayer},
    };
    OrloPage page = ORLO_INIT(OrloPage);
    OrloSheet sheet = ORLO_INIT(OrloSheet);
    int32_t code;

    page.number = kPricePage;
    page.caption = "Price";
    page.fields = fields;
    page.fieldCount = 2;
    page.get = GetPrice;
    page.set = SetPrice;
    page.context = prices;

    sheet.filter = kOrloAllGraphics;
    sheet.owner = window;
    sheet.drawing = drawing;
    sheet.selection = DrawingGetRoot(drawing);
    sheet.pages = &page;
    sheet.pageCount = 1;
    if (OrloRunSheet(&sheet, &code) != kOrloOk) {
        char reason[256];
        OrloGetErrorText(reason, sizeof reason);
        fprintf(stderr, "cannot open the sheet: %s\n", reason);
        return 2;
    }
    if (code == IDOK && prices->count > 0) printf("first price: %.2f\n", prices->prices[0]);
    return code == IDOK ? 0 : 1;
}

int wmain(int count, wchar_t** arguments) {
    static Prices prices;
    DrawingStruct* drawing = count == 2 ? DrawingOpenDxf(arguments[1], NULL, NULL, 0) : NULL;
    int result;
    if (drawing == NULL || OrloGetVersion() < ORLO_VERSION) return 2;
    AppSetCurrentDrawing(drawing);
    Collect(&prices, DrawingGetRoot(drawing));
    result = ShowProperties(NULL, drawing, &prices);
    DrawingDispose(&drawing);
    return result;
}
