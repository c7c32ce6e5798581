// Extension modules: DLLs whose resources are found by the whole program.
//
//   static AFX_EXTENSION_MODULE module;                       // initialized with zeros
//   in DllMain, attach:   AfxInitExtensionModule(module, hInstance);
//   in an init function:  new CDynLinkLibrary(module);        // owned by the framework
//   in DllMain, detach:   AfxTermExtensionModule(module);     // if the DLL can be unloaded before the program ends
#pragma once

#include <afxwin.h>

struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
};

// Initializes the module. Returns true, even if the module is already initialized.
AFX_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
// Removes the module from the list of modules.
AFX_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state);

// Adds a module to the list of modules in which resources are searched for.
class AFX_API CDynLinkLibrary : public CObject {
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    ~CDynLinkLibrary() override;
    HMODULE m_hModule;
    HMODULE m_hResource;
};
