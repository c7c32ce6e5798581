// Runs the checks in a child process.

#include "inspection.h"

#include <stdexcept>

#include "requirement.h"

namespace {

void WriteLine(HANDLE report, const std::string& line) {
    const std::string whole = line + "\n";
    DWORD written;
    ::WriteFile(report, whole.data(), static_cast<DWORD>(whole.size()), &written, nullptr);
}

// Prevents the system's error dialog and the debugger.
LONG WINAPI EndWithCode(EXCEPTION_POINTERS* pointers) {
    ::TerminateProcess(::GetCurrentProcess(), pointers->ExceptionRecord->ExceptionCode);
    return EXCEPTION_EXECUTE_HANDLER;
}

// Functions that create drawings are not part of the contract. These prototypes are those of the reference database and
// the skeleton.
using DrawingOpenDxf = DrawingStruct*(const wchar_t* path, const void* listener, char* message, int size);
using DrawingNew = DrawingStruct*();
using AppSetCurrentDrawing = int(DrawingStruct*);

DrawingStruct* OpenDrawing(const Host& host, const std::wstring& file) {
    if (file.empty()) return host.Has("DrawingNew") ? host.Function<DrawingNew>("DrawingNew")() : nullptr;
    if (!host.Has("DrawingOpenDxf"))
        throw std::runtime_error("cannot open the drawing: the database does not export DrawingOpenDxf");
    char message[256] = "";
    DrawingStruct* drawing =
        host.Function<DrawingOpenDxf>("DrawingOpenDxf")(file.c_str(), nullptr, message, sizeof message);
    if (!drawing) throw std::runtime_error(std::string("cannot open the drawing: ") + message);
    return drawing;
}

DrawingStruct* CurrentDrawing(const Host& host, const std::wstring& file) {
    DrawingStruct* drawing = OpenDrawing(host, file);
    if (drawing && host.Has("AppSetCurrentDrawing"))
        host.Function<AppSetCurrentDrawing>("AppSetCurrentDrawing")(drawing);
    const AppStruct* application = CALL(host, AppGetCurrentApp)();
    if (!application || !application->pCurrentDrawing)
        throw std::runtime_error(
            "the database has no current drawing; export DrawingNew and AppSetCurrentDrawing, or set one "
            "when the database is loaded");
    return application->pCurrentDrawing;
}

// Returns the violation of a requirement, or an empty string if it is met.
std::string ViolationOf(const Requirement& requirement, const Subject& subject) try {
    if (!subject.host.Has(requirement.function)) return "the function is not exported";
    if (requirement.check) requirement.check(subject);
    return {};
} catch (const Violation& violation) {
    return violation.found;
} catch (const Missing& missing) {
    return "the check requires " + missing.name + ", which is not exported";
} catch (const std::exception& exception) {
    return std::string("the function threw an exception: ") + exception.what();
} catch (...) {
    return "the function threw an exception";
}

void CheckRequirements(const Subject& subject, size_t first, HANDLE report) {
    const auto& requirements = AllRequirements();
    for (size_t i = first; i < requirements.size(); ++i) {
        const std::string number = std::to_string(i);
        WriteLine(report, "start " + number);
        const std::string violation = ViolationOf(requirements[i], subject);
        WriteLine(report, violation.empty() ? "passed " + number : "failed " + number + " " + violation);
    }
}

} // namespace

void Inspect(const std::wstring& database, const std::wstring& drawingFile, size_t first, HANDLE report) try {
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    ::SetUnhandledExceptionFilter(EndWithCode);
    const Host host(database.c_str());
    const Subject subject(host, CurrentDrawing(host, drawingFile));
    CheckRequirements(subject, first, report);
    WriteLine(report, "end");
} catch (const Missing& missing) {
    WriteLine(report, "error the database does not export " + missing.name);
} catch (const std::exception& exception) {
    WriteLine(report, std::string("error ") + exception.what());
}
