// The core's files on Windows: wide-character names (never the ANSI code
// page), a save that flushes a file beside the target and moves it into place
// in one step, and reads that take only what the caller accepts.
#include <windows.h>

#include <algorithm>
#include <cstdio>

#include "document/platform/Files.h"

namespace flickerscribe::platform {
namespace {

// The UTF-8 path as Windows names it, with its own separators (Qt and the
// tests write '/', which not every call takes); nullopt for bytes that are no
// UTF-8.
std::optional<std::wstring> Widen(const std::string& utf8) {
    if (utf8.empty()) return std::wstring();
    const int size = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(),
                                         static_cast<int>(utf8.size()), nullptr, 0);
    if (size <= 0) return std::nullopt;
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), static_cast<int>(utf8.size()),
                        wide.data(), size);
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    return wide;
}

std::string Narrow(std::wstring_view wide) {
    if (wide.empty()) return {};
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), nullptr, 0,
                                         nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(std::max(size, 0)), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), utf8.data(), size, nullptr,
                        nullptr);
    return utf8;
}

SaveError ErrorOf(DWORD number) {
    return SaveError{static_cast<int>(number), ErrorText(static_cast<int>(number))};
}

// Closes the handle on every way out.
class Handle {
public:
    explicit Handle(HANDLE h = INVALID_HANDLE_VALUE) : h_(h) {}
    ~Handle() { Close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    bool Valid() const { return h_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return h_; }
    void Reset(HANDLE h) {
        Close();
        h_ = h;
    }
    // 0 or the error of closing.
    DWORD Close() {
        DWORD error = 0;
        if (Valid() && !CloseHandle(h_)) error = GetLastError();
        h_ = INVALID_HANDLE_VALUE;
        return error;
    }

private:
    HANDLE h_;
};

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
// What a saved file keeps of the old one's attributes (read-only files are
// refused before).
constexpr DWORD kKeptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                                  FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

// Writes all bytes; with a fault only the first ones, then fails. 0 or the error.
DWORD WriteAll(HANDLE h, std::string_view bytes, const std::optional<WriteFault>& fault) {
    if (fault && fault->bytes < bytes.size()) bytes = bytes.substr(0, fault->bytes);
    while (!bytes.empty()) {
        const DWORD chunk = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1u << 30));
        DWORD written = 0;
        if (!WriteFile(h, bytes.data(), chunk, &written, nullptr)) return GetLastError();
        bytes.remove_prefix(written);
    }
    return fault ? static_cast<DWORD>(fault->error) : 0;
}

// The folder part of a path with its trailing separator ("" for a bare name).
std::wstring FolderOf(const std::wstring& path) {
    const auto separator = path.find_last_of(L"\\:");
    return separator == std::wstring::npos ? std::wstring() : path.substr(0, separator + 1);
}

// The temporary file beside the target, removed again unless Keep() was called.
class TempFile {
public:
    explicit TempFile(const std::wstring& target) {
        const std::wstring folder = FolderOf(target);
        std::wstring base = target.substr(folder.size());
        if (base.size() > 200) base.resize(200);  // leave room for the suffix
        static unsigned counter = 0;
        for (int attempt = 0; attempt < 100; ++attempt) {
            wchar_t suffix[32];
            std::swprintf(suffix, 32, L".saving-%08lx",
                          static_cast<unsigned long>((GetTickCount64() * 2654435761u) ^
                                                     GetCurrentProcessId() ^ (++counter << 20)));
            path_ = folder + L"." + base + suffix;
            h_.Reset(CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                                 nullptr));
            if (h_.Valid()) {
                created_ = true;
                return;
            }
            openError_ = GetLastError();
            if (openError_ != ERROR_FILE_EXISTS && openError_ != ERROR_ALREADY_EXISTS) return;
        }
    }
    ~TempFile() {
        h_.Close();
        if (created_ && !kept_) DeleteFileW(path_.c_str());
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    DWORD OpenError() const { return h_.Valid() ? 0 : openError_; }
    HANDLE Get() const { return h_.Get(); }
    DWORD Close() { return h_.Close(); }
    const std::wstring& Path() const { return path_; }
    void Keep() { kept_ = true; }

private:
    std::wstring path_;
    Handle h_;
    DWORD openError_ = 0;
    bool created_ = false;
    bool kept_ = false;
};

}  // namespace

std::string ErrorText(int number) {
    wchar_t* buffer = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        static_cast<DWORD>(number), 0, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
    std::wstring text(buffer != nullptr ? buffer : L"", length);
    LocalFree(buffer);
    while (!text.empty() && (text.back() == L'\n' || text.back() == L'\r' || text.back() == L' '))
        text.pop_back();
    if (text.empty()) return "Error " + std::to_string(number);
    return Narrow(text);
}

bool CanOpenForReading(const std::string& path) {
    const auto wide = Widen(path);
    if (!wide || wide->empty()) return false;
    // Without FILE_FLAG_BACKUP_SEMANTICS a folder doesn't open.
    const Handle h(CreateFileW(wide->c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                               FILE_ATTRIBUTE_NORMAL, nullptr));
    return h.Valid();
}

std::optional<std::string> ReadWholeFile(const std::string& path, FileKinds kinds) {
    const auto wide = Widen(path);
    if (!wide || wide->empty()) return std::nullopt;
    const Handle h(CreateFileW(wide->c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                               FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!h.Valid()) return std::nullopt;  // also a folder
    const bool disk = GetFileType(h.Get()) == FILE_TYPE_DISK;
    if (!disk && kinds == FileKinds::PlainOnly) return std::nullopt;  // a device (CON, NUL) or a pipe
    std::string data;
    if (disk) {
        LARGE_INTEGER size{};
        if (!GetFileSizeEx(h.Get(), &size) || static_cast<unsigned long long>(size.QuadPart) > kMaxFileBytes)
            return std::nullopt;
        data.reserve(static_cast<std::size_t>(size.QuadPart));
    }
    char buffer[1 << 16];
    for (;;) {
        DWORD got = 0;
        if (!ReadFile(h.Get(), buffer, sizeof buffer, &got, nullptr)) {
            // The writer of a pipe closing its end is the pipe's end.
            if (!disk && GetLastError() == ERROR_BROKEN_PIPE) break;
            return std::nullopt;  // an I/O error: what was read so far is no file
        }
        if (got == 0) break;
        data.append(buffer, got);
        if (data.size() > kMaxFileBytes) return std::nullopt;  // a pipe or a growing file
    }
    return data;
}

std::optional<SaveError> ReplaceFileContent(const std::string& path, std::string_view bytes, FileKinds kinds,
                                            const std::optional<WriteFault>& fault) {
    if (path.empty()) return ErrorOf(ERROR_PATH_NOT_FOUND);
    const auto wide = Widen(path);
    if (!wide) return ErrorOf(ERROR_NO_UNICODE_TRANSLATION);

    // A read-only file is refused as a plain write would refuse it (checked
    // here, since an administrator's open would go through all the same).
    const DWORD oldAttributes = GetFileAttributesW(wide->c_str());
    if (oldAttributes != INVALID_FILE_ATTRIBUTES && (oldAttributes & FILE_ATTRIBUTE_READONLY) &&
        !(oldAttributes & FILE_ATTRIBUTE_DIRECTORY))
        return ErrorOf(ERROR_ACCESS_DENIED);
    // Opened for writing as a plain write would open it: a folder or a file
    // that another program holds without sharing is refused here, before
    // anything is written.
    bool exists = false;
    {
        Handle old(CreateFileW(wide->c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                               OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!old.Valid()) {
            const DWORD error = GetLastError();
            if (error != ERROR_FILE_NOT_FOUND) return ErrorOf(error);
        } else if (GetFileType(old.Get()) != FILE_TYPE_DISK) {
            // A device or a pipe has no old content to keep: it is written in place.
            if (kinds == FileKinds::PlainOnly) return ErrorOf(ERROR_INVALID_PARAMETER);
            DWORD error = WriteAll(old.Get(), bytes, fault);
            if (const DWORD closed = old.Close(); error == 0) error = closed;
            if (error != 0) return ErrorOf(error);
            return std::nullopt;
        } else {
            exists = true;
        }
    }

    TempFile temp(*wide);
    if (const DWORD error = temp.OpenError()) return ErrorOf(error);
    if (const DWORD error = WriteAll(temp.Get(), bytes, fault)) return ErrorOf(error);
    if (!FlushFileBuffers(temp.Get())) return ErrorOf(GetLastError());
    if (const DWORD error = temp.Close()) return ErrorOf(error);
    // MoveFileExW rather than ReplaceFileW: both refuse a file that another
    // program holds without sharing its deletion, but ReplaceFileW (Wine's at
    // least) may leave a file of its own behind when it does. The new file
    // takes the old one's attributes (hidden, archive); its permissions are
    // the folder's, as for any new file there.
    if (exists && oldAttributes != INVALID_FILE_ATTRIBUTES)
        SetFileAttributesW(temp.Path().c_str(), oldAttributes & kKeptAttributes);
    const bool placed =
        MoveFileExW(temp.Path().c_str(), wide->c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    if (!placed) return ErrorOf(GetLastError());
    temp.Keep();
    return std::nullopt;
}

}  // namespace flickerscribe::platform
