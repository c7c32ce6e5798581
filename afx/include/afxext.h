// Extension modules: libraries whose resources the whole program finds.
//
//   static AFX_EXTENSION_MODULE module;                       // zero
//   in DllMain, attach:   AfxInitExtensionModule(module, hInstance);
//   in an init function:  new CDynLinkLibrary(module);        // belongs to the framework's chain
//   in DllMain, detach:   AfxTermExtensionModule(module);     // if the library can go before the program does
#pragma once

#include <afxwin.h>

struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
};

// True, also when called again.
AFX_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
// Takes the module out of the chain.
AFX_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state);

class AFX_API CDynLinkLibrary : public CObject {
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    ~CDynLinkLibrary() override;
    HMODULE m_hModule;
    HMODULE m_hResource;
};
