// Runs the checks in a child process.

#include "inspection.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

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
    if (!host.Has("AppGetCurrentApp")) return nullptr;
    const AppStruct* application = CALL(host, AppGetCurrentApp)();
    return application ? application->pCurrentDrawing : nullptr;
}

// Throws std::runtime_error if the module has none of the functions.
void ReportMissing(const Host& host, HANDLE report) {
    const auto& functions = AllFunctions();
    std::string lines;
    const auto missing = std::count_if(functions.begin(), functions.end(), [&](const ContractFunction& function) {
        if (host.Has(function.name)) return false;
        lines += std::string("missing ") + function.name + '\n';
        return true;
    });
    if (missing == static_cast<ptrdiff_t>(functions.size()))
        throw std::runtime_error("the file exports no function of the contract, such as AppGetCurrentApp");
    if (missing) WriteLine(report, lines.substr(0, lines.size() - 1));
}

// Returns the line that reports the result, without its number and line end: the word, and the text that follows the
// number.
std::pair<std::string, std::string> ResultOf(const Requirement& requirement, const Subject& subject) try {
    if (!subject.host.Has(requirement.function)) return {"broken", "the function is not exported"};
    requirement.check(subject);
    return {"kept", ""};
} catch (const Violation& violation) {
    return {"broken", violation.found};
} catch (const StubFound& stub) {
    return {"stub", stub.function};
} catch (const Missing& missing) {
    return {"broken", "the check requires " + missing.name + ", which is not exported"};
} catch (const std::exception& exception) {
    return {"broken", std::string("the function threw an exception: ") + exception.what()};
} catch (...) {
    return {"broken", "the function threw an exception"};
}

void CheckRequirements(const Subject& subject, size_t first, HANDLE report) {
    const auto& requirements = AllRequirements();
    for (size_t i = first; i < requirements.size(); ++i) {
        const std::string number = std::to_string(i);
        WriteLine(report, "start " + number);
        const auto [word, text] = ResultOf(requirements[i], subject);
        WriteLine(report, word + " " + number + " " + text);
    }
}

} // namespace

void Inspect(const std::wstring& database, const std::wstring& drawingFile, size_t first, HANDLE report) try {
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    ::SetUnhandledExceptionFilter(EndWithCode);
    const Host host(database.c_str());
    if (first == 0) ReportMissing(host, report);
    const Subject subject(host, CurrentDrawing(host, drawingFile));
    if (first == 0 && !subject.HasDrawing())
        WriteLine(report,
                  "note the database has no current drawing; export DrawingNew and AppSetCurrentDrawing, or set "
                  "one when the database is loaded");
    CheckRequirements(subject, first, report);
    WriteLine(report, "end");
} catch (const std::exception& exception) {
    WriteLine(report, std::string("error ") + exception.what());
}
