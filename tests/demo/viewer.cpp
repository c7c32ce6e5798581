// The demo's main window with a small drawing open.

#include "demo/viewer.h"

#include <fstream>
#include <iterator>

#include "demo/viewer/file_name.h"
#include "demo/viewer/memory_picture.h"
#include "demo/viewer/settings.h"
#include "orlo/entry/entry.h"

namespace {

constexpr const char* kDrawing = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1009\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n"
                                 "0\nLINE\n8\n0\n62\n1\n10\n5\n20\n5\n11\n15\n21\n5\n"
                                 "0\nLINE\n8\n0\n62\n3\n10\n5\n20\n35\n11\n15\n21\n35\n"
                                 "0\nLINE\n8\n0\n62\n2\n10\n25\n20\n5\n11\n35\n21\n15\n"
                                 "0\nTEXT\n8\nA & B\n10\n25\n20\n30\n40\n4\n1\nOrlo\n"
                                 "0\nENDSEC\n0\nEOF\n";

} // namespace

DrawingFile::DrawingFile(const char* content) {
    char folder[MAX_PATH], path[MAX_PATH];
    ::GetTempPathA(sizeof folder, folder);
    ::GetTempFileNameA(folder, "dxf", 0, path);
    m_path = path;
    Write(content);
}

DrawingFile::~DrawingFile() {
    ::DeleteFileA(m_path.c_str());
}

std::string DrawingFile::Path() const {
    return Utf8FromSystem(m_path.c_str());
}

void DrawingFile::Write(const std::string& content) const {
    std::ofstream(m_path, std::ios::binary) << content;
}

std::string DrawingFile::Read() const {
    std::ifstream stream(m_path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

Viewer::Viewer() : frame(new CMainFrame), file(kDrawing) {
    ::PropPageInit();
    Settings::UseKey(L"Software\\Orlo\\Demo Tests");
    Settings::DeleteAll();
    if (!frame->Create()) throw std::runtime_error("no window");
    AfxGetThread()->m_pMainWnd = frame;
    frame->ShowWindow(SW_SHOW);
    frame->Open(file.Path());
    user.MoveFocus(frame->View().m_hWnd);
    user.Wait(0);
}

Viewer::~Viewer() {
    frame->DestroyWindow();
    AfxGetThread()->m_pMainWnd = nullptr;
    user.Wait(0);
    Settings::DeleteAll();
}

void Viewer::Drag(WorldPoint from, WorldPoint to, unsigned modifiers) {
    const CPoint start = Pixel(from.x, from.y), end = Pixel(to.x, to.y);
    user.Press(view(), start, modifiers);
    user.MoveTo(view(), end);
    user.Release(view(), end, modifiers);
}

std::vector<uint32_t> Viewer::ViewPixels() {
    constexpr unsigned kTick = 10;
    for (user.Wait(0); !frame->View().IsExact();)
        user.Wait(kTick);
    CRect client;
    ::GetClientRect(view(), client);
    MemoryPicture picture;
    EXPECT_TRUE(picture.Resize(client.Size()));
    picture.CopyFrom(orlo::WindowDC(view()).get(), client);
    std::vector<uint32_t> pixels;
    for (int y = 0; y < client.Height(); ++y)
        for (int x = 0; x < client.Width(); ++x)
            pixels.push_back(picture.Row(y)[x] & 0xFFFFFF);
    return pixels;
}
