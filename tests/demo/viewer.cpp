// The demo's main window with a small drawing open.

#include "demo/viewer.h"

#include <cstdio>

#include "demo/viewer/file_name.h"
#include "demo/viewer/memory_picture.h"
#include "orlo/entry/entry.h"

namespace {

constexpr const char* kDrawing = "0\nSECTION\n2\nENTITIES\n"
                                 "0\nLINE\n8\n0\n62\n1\n10\n5\n20\n5\n11\n15\n21\n5\n"
                                 "0\nLINE\n8\n0\n62\n3\n10\n5\n20\n35\n11\n15\n21\n35\n"
                                 "0\nLINE\n8\n0\n62\n2\n10\n25\n20\n5\n11\n35\n21\n15\n"
                                 "0\nTEXT\n8\nA & B\n10\n25\n20\n30\n40\n4\n1\nOrlo\n"
                                 "0\nENDSEC\n0\nEOF\n";

// A file of the temporary folder, for as long as the object lives.
class DrawingFile {
public:
    explicit DrawingFile(const char* content) {
        char folder[MAX_PATH], path[MAX_PATH];
        ::GetTempPathA(sizeof folder, folder);
        ::GetTempFileNameA(folder, "dxf", 0, path);
        m_path = path;
        std::FILE* file = std::fopen(path, "wb");
        std::fputs(content, file);
        std::fclose(file);
    }
    ~DrawingFile() { ::DeleteFileA(m_path.c_str()); }
    DrawingFile(const DrawingFile&) = delete;
    DrawingFile& operator=(const DrawingFile&) = delete;
    std::string Path() const { return Utf8FromSystem(m_path.c_str()); }

private:
    std::string m_path;
};

} // namespace

Viewer::Viewer() : frame(new CMainFrame) {
    ::PropPageInit();
    if (!frame->Create()) throw std::runtime_error("no window");
    AfxGetThread()->m_pMainWnd = frame;
    frame->ShowWindow(SW_SHOW);
    const DrawingFile file(kDrawing);
    frame->Open(file.Path());
    frame->View().SetFocus();
    user.Wait(0);
}

Viewer::~Viewer() {
    frame->DestroyWindow();
    AfxGetThread()->m_pMainWnd = nullptr;
    user.Wait(0);
}

void Viewer::Drag(WorldPoint from, WorldPoint to, unsigned modifiers) {
    const CPoint start = Pixel(from.x, from.y), end = Pixel(to.x, to.y);
    user.Press(view(), start, modifiers);
    user.MoveTo(view(), end);
    user.Release(view(), end, modifiers);
}

std::vector<uint32_t> Viewer::Seen() {
    user.Wait(0);
    CRect client;
    ::GetClientRect(view(), client);
    MemoryPicture picture;
    EXPECT_TRUE(picture.Resize(client.Size()));
    picture.CopyFrom(WindowDC(view()).get(), client);
    std::vector<uint32_t> pixels;
    for (int y = 0; y < client.Height(); ++y)
        for (int x = 0; x < client.Width(); ++x)
            pixels.push_back(picture.Row(y)[x] & 0xFFFFFF);
    return pixels;
}
