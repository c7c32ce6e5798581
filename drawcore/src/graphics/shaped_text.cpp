// Shapes a row of text with the system's script engine.
#include "drawcore/src/graphics/shaped_text.h"

#include <algorithm>
#include <numeric>

namespace drawcore {

namespace {

// Returns the runs of a row in text order and an additional end marker, or nothing on failure.
std::vector<SCRIPT_ITEM> Itemize(std::wstring_view row) {
    const int length = static_cast<int>(row.size());
    const SCRIPT_CONTROL control{};
    const SCRIPT_STATE state{}; // the base direction is left to right
    std::vector<SCRIPT_ITEM> items(row.size() + 1);
    int count = 0;
    if (FAILED(::ScriptItemize(row.data(), length, length, &control, &state, items.data(), &count))) return {};
    items.resize(static_cast<size_t>(count) + 1);
    return items;
}

bool LacksGlyphs(HDC dc, SCRIPT_CACHE& cache, const std::vector<WORD>& glyphs) {
    SCRIPT_FONTPROPERTIES properties{};
    properties.cBytes = sizeof properties;
    if (FAILED(::ScriptGetFontProperties(dc, &cache, &properties))) return true;
    return std::find(glyphs.begin(), glyphs.end(), properties.wgDefault) != glyphs.end();
}

// Returns false if the font cannot display the text.
bool Shape(HDC dc, SCRIPT_CACHE& cache, std::wstring_view text, ShapedRun& run) {
    const size_t most = text.size() * 3 / 2 + 16; // recommended by the system's documentation
    run.glyphs.resize(most);
    std::vector<WORD> clusters(text.size());
    std::vector<SCRIPT_VISATTR> attributes(most);
    int count = 0;
    if (::ScriptShape(dc, &cache, text.data(), static_cast<int>(text.size()), static_cast<int>(most), &run.analysis,
                      run.glyphs.data(), clusters.data(), attributes.data(), &count) != S_OK)
        return false;
    run.glyphs.resize(static_cast<size_t>(count));
    run.advances.resize(run.glyphs.size());
    run.offsets.resize(run.glyphs.size());
    if (LacksGlyphs(dc, cache, run.glyphs) ||
        ::ScriptPlace(dc, &cache, run.glyphs.data(), count, attributes.data(), &run.analysis, run.advances.data(),
                      run.offsets.data(), nullptr) != S_OK)
        return false;
    run.width = std::accumulate(run.advances.begin(), run.advances.end(), 0);
    return true;
}

} // namespace

std::vector<ShapedRun> ShapeRow(HDC dc, SCRIPT_CACHE& cache, std::wstring_view row) {
    if (::ScriptIsComplex(row.data(), static_cast<int>(row.size()), SIC_COMPLEX) != S_OK) return {};
    const std::vector<SCRIPT_ITEM> items = Itemize(row);
    if (items.size() < 2) return {};
    const size_t count = items.size() - 1;
    std::vector<BYTE> levels;
    for (size_t i = 0; i < count; ++i)
        levels.push_back(items[i].a.s.uBidiLevel);
    std::vector<int> order(count);
    if (FAILED(::ScriptLayout(static_cast<int>(count), levels.data(), order.data(), nullptr))) return {};

    std::vector<ShapedRun> runs;
    int left = 0;
    for (const int index : order) {
        const SCRIPT_ITEM *item = &items[static_cast<size_t>(index)], *next = item + 1;
        ShapedRun& run = runs.emplace_back();
        run.analysis = item->a;
        run.left = left;
        const auto begin = static_cast<size_t>(item->iCharPos), end = static_cast<size_t>(next->iCharPos);
        if (!Shape(dc, cache, row.substr(begin, end - begin), run)) return {};
        left += run.width;
    }
    return runs;
}

void DrawShapedRow(HDC dc, SCRIPT_CACHE& cache, const std::vector<ShapedRun>& row, int left, int baseline) {
    for (const ShapedRun& run : row)
        ::ScriptTextOut(dc, &cache, left + run.left, baseline, 0, nullptr, &run.analysis, nullptr, 0, run.glyphs.data(),
                        static_cast<int>(run.glyphs.size()), run.advances.data(), nullptr, run.offsets.data());
}

} // namespace drawcore
