// The list of modules in which resources are searched for.

#include <afxext.h>

#include <algorithm>
#include <vector>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

namespace {

// Sorted from the latest to the first module.
std::vector<CDynLinkLibrary*>& Libraries() {
    static std::vector<CDynLinkLibrary*> libraries;
    return libraries;
}

HINSTANCE OwnModule() {
    HMODULE module = nullptr;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCSTR>(&OwnModule), &module);
    return module;
}

// Returns the first module in search order for which the condition is true, or null.
template <class Has>
HINSTANCE FindModule(Has has) {
    if (has(AfxGetInstanceHandle())) return AfxGetInstanceHandle();
    for (const CDynLinkLibrary* library : Libraries()) {
        if (library->m_hResource != nullptr && has(library->m_hResource)) return library->m_hResource;
    }
    static const HINSTANCE own = OwnModule();
    return has(own) ? own : nullptr;
}

} // namespace

HINSTANCE AfxFindResourceHandle(LPCSTR lpszName, LPCSTR lpszType) {
    HINSTANCE found =
        FindModule([=](HINSTANCE module) { return ::FindResourceA(module, lpszName, lpszType) != nullptr; });
    return found != nullptr ? found : AfxGetInstanceHandle();
}

int AfxLoadString(UINT nIDS, LPSTR lpszBuf, UINT nMaxBuf) {
    if (nMaxBuf == 0) return 0;
    int length = 0;
    FindModule([&](HINSTANCE module) {
        length = ::LoadStringA(module, nIDS, lpszBuf, static_cast<int>(nMaxBuf));
        return length > 0;
    });
    if (length == 0) *lpszBuf = '\0';
    return length;
}

BOOL CString::ReadResource(UINT nID) {
    // The length of a string resource cannot be queried: a full buffer means that a larger one is needed.
    int length = 0;
    int capacity = 256;
    do {
        capacity *= 2;
        length = AfxLoadString(nID, GetBufferSetLength(capacity), static_cast<UINT>(capacity));
    } while (length == capacity - 1);
    ReleaseBuffer(length);
    return length > 0;
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state) {
    const std::vector<CDynLinkLibrary*> libraries = Libraries();
    for (CDynLinkLibrary* library : libraries) {
        if (library->m_hModule == state.hModule) delete library;
    }
    state.bInitialized = FALSE;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state) : m_hModule(state.hModule), m_hResource(state.hResource) {
    Libraries().insert(Libraries().begin(), this);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    auto& libraries = Libraries();
    libraries.erase(std::remove(libraries.begin(), libraries.end(), this), libraries.end());
}
