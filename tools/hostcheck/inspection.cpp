// Checks promise after promise in a process of its own.

#include "inspection.h"

#include <stdexcept>

#include "promise.h"

namespace {

void Tell(HANDLE report, const std::string& line) {
    const std::string whole = line + "\n";
    DWORD written;
    ::WriteFile(report, whole.data(), static_cast<DWORD>(whole.size()), &written, nullptr);
}

// The system would ask the user, or start a debugger.
LONG WINAPI EndWithCode(EXCEPTION_POINTERS* pointers) {
    ::TerminateProcess(::GetCurrentProcess(), pointers->ExceptionRecord->ExceptionCode);
    return EXCEPTION_EXECUTE_HANDLER;
}

// Calls of a database that make drawings are not part of the contract: these have the names and the forms that the reference
// database and the skeleton give them.
using DrawingOpenDxf = DrawingStruct*(const wchar_t* path, const void* listener, char* message, int size);
using DrawingNew = DrawingStruct*();
using AppSetCurrentDrawing = int(DrawingStruct*);

DrawingStruct* OpenDrawing(const Host& host, const std::wstring& file) {
    if (file.empty()) return host.Has("DrawingNew") ? host.Function<DrawingNew>("DrawingNew")() : nullptr;
    if (!host.Has("DrawingOpenDxf"))
        throw std::runtime_error("the database has no DrawingOpenDxf that could open the drawing");
    char message[256] = "";
    DrawingStruct* drawing =
        host.Function<DrawingOpenDxf>("DrawingOpenDxf")(file.c_str(), nullptr, message, sizeof message);
    if (!drawing) throw std::runtime_error(std::string("the drawing cannot be opened: ") + message);
    return drawing;
}

DrawingStruct* CurrentDrawing(const Host& host, const std::wstring& file) {
    DrawingStruct* drawing = OpenDrawing(host, file);
    if (drawing && host.Has("AppSetCurrentDrawing"))
        host.Function<AppSetCurrentDrawing>("AppSetCurrentDrawing")(drawing);
    const AppStruct* application = CALL(host, AppGetCurrentApp)();
    if (!application || !application->pCurrentDrawing)
        throw std::runtime_error(
            "no drawing is current: export DrawingNew and AppSetCurrentDrawing, or have one from "
            "the start");
    return application->pCurrentDrawing;
}

// Empty: the promise is kept.
std::string FoundInstead(const Promise& promise, const Subject& subject) try {
    if (!subject.host.Has(promise.function)) return "it is missing";
    if (promise.check) promise.check(subject);
    return {};
} catch (const Broken& broken) {
    return broken.found;
} catch (const Missing& missing) {
    return missing.name + ", which the check needs, is missing";
} catch (const std::exception& exception) {
    return std::string("an exception came out of it: ") + exception.what();
} catch (...) {
    return "an exception came out of it";
}

void InspectPromises(const Subject& subject, size_t first, HANDLE report) {
    const auto& promises = AllPromises();
    for (size_t i = first; i < promises.size(); ++i) {
        const std::string number = std::to_string(i);
        Tell(report, "start " + number);
        const std::string found = FoundInstead(promises[i], subject);
        Tell(report, found.empty() ? "kept " + number : "broken " + number + " " + found);
    }
}

} // namespace

void Inspect(const std::wstring& database, const std::wstring& drawingFile, size_t first, HANDLE report) try {
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    ::SetUnhandledExceptionFilter(EndWithCode);
    const Host host(database.c_str());
    const Subject subject(host, CurrentDrawing(host, drawingFile));
    InspectPromises(subject, first, report);
    Tell(report, "end");
} catch (const Missing& missing) {
    Tell(report, "failed the database has no " + missing.name);
} catch (const std::exception& exception) {
    Tell(report, std::string("failed ") + exception.what());
}
