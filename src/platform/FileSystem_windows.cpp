#include <QDateTime>
#include <QFileInfo>
#include <QThread>
#include <cstring>
#include <string>
#include <utility>
#include <windows.h>

#include <aclapi.h>

#include "platform/FileSystem.h"
#include "text/Utf8.h"

namespace zelvor {

namespace {

constexpr std::wstring_view DeviceMark = LR"(\\.\)";
constexpr std::wstring_view LongMark = LR"(\\?\)";
constexpr std::wstring_view LongShareMark = LR"(\\?\UNC\)";
constexpr std::wstring_view ShareMark = LR"(\\)";

/// With drive and folders, and without what names of files cannot end with.
std::wstring FullName(const std::wstring& name) {
    std::wstring full(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full;
}

/// The toolkit puts the marks of long names there itself.
std::wstring WithoutMark(const std::wstring& full) {
    if (full.starts_with(LongShareMark)) {
        return std::wstring(ShareMark) + full.substr(LongShareMark.size());
    }
    return full.starts_with(LongMark) ? full.substr(LongMark.size()) : full;
}

/// As the system's functions take a path of any length. Theirs end at 260 characters otherwise.
std::wstring LongName(const std::filesystem::path& path) {
    std::filesystem::path full = path;
    const std::wstring name = full.make_preferred().wstring();
    return name.starts_with(ShareMark) ? std::wstring(LongShareMark) + name.substr(ShareMark.size())
                                       : std::wstring(LongMark) + name;
}

std::filesystem::path PathOfToolkitName(const QString& name) {
    return name.toStdWString();
}

/// An open file, for nothing but what can be asked of it.
class AskedFile {
public:
    explicit AskedFile(const std::filesystem::path& path, DWORD access = 0)
        : handle_(CreateFileW(LongName(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                              nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr)) {}
    ~AskedFile() {
        if (IsOpen()) {
            CloseHandle(handle_);
        }
    }
    AskedFile(const AskedFile&) = delete;
    AskedFile& operator=(const AskedFile&) = delete;

    [[nodiscard]] std::optional<BY_HANDLE_FILE_INFORMATION> Information() const {
        BY_HANDLE_FILE_INFORMATION information{};
        return GetFileInformationByHandle(handle_, &information) != 0 ? std::optional(information) : std::nullopt;
    }
    [[nodiscard]] HANDLE Handle() const { return handle_; }
    [[nodiscard]] bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] bool Sync() const { return FlushFileBuffers(handle_) != 0; }

private:
    HANDLE handle_;
};

/// Owner and access list of an open file; not known on file systems without them.
class Security {
public:
    explicit Security(const AskedFile& file) {
        isKnown_ =
            GetSecurityInfo(file.Handle(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                            &owner_, nullptr, &list_, nullptr, &descriptor_) == ERROR_SUCCESS;
    }
    ~Security() { LocalFree(descriptor_); }
    Security(const Security&) = delete;
    Security& operator=(const Security&) = delete;

    [[nodiscard]] bool IsKnown() const { return isKnown_ && owner_ != nullptr && list_ != nullptr; }
    [[nodiscard]] bool HasOwnerOf(const Security& other) const { return EqualSid(owner_, other.owner_) != 0; }
    [[nodiscard]] bool HasListOf(const Security& other) const {
        return IsOwn() == other.IsOwn() && list_->AclSize == other.list_->AclSize &&
               std::memcmp(list_, other.list_, list_->AclSize) == 0;
    }
    [[nodiscard]] bool HandListOnTo(const AskedFile& file) const {
        const SECURITY_INFORMATION inheritance =
            IsOwn() ? PROTECTED_DACL_SECURITY_INFORMATION : UNPROTECTED_DACL_SECURITY_INFORMATION;
        return SetSecurityInfo(file.Handle(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | inheritance, nullptr, nullptr,
                               list_, nullptr) == ERROR_SUCCESS;
    }

private:
    /// Whether the list takes nothing over from the folder.
    [[nodiscard]] bool IsOwn() const {
        SECURITY_DESCRIPTOR_CONTROL control = 0;
        DWORD revision = 0;
        return GetSecurityDescriptorControl(descriptor_, &control, &revision) != 0 &&
               (control & SE_DACL_PROTECTED) != 0;
    }

    bool isKnown_ = false;
    PSID owner_ = nullptr;
    PACL list_ = nullptr;
    PSECURITY_DESCRIPTOR descriptor_ = nullptr;
};

bool TakeOverSecurity(const std::filesystem::path& from, const std::filesystem::path& to) {
    const AskedFile oldFile(from, READ_CONTROL);
    const AskedFile freshFile(to, READ_CONTROL | WRITE_DAC);
    const Security old(oldFile);
    const Security fresh(freshFile);
    if (!old.IsKnown() || !fresh.IsKnown()) {
        return true;
    }
    return fresh.HasOwnerOf(old) && (fresh.HasListOf(old) || old.HandListOnTo(freshFile));
}

/// A file from the net, for one, has beside its content a stream that says so.
bool HasOtherStreams(const std::filesystem::path& path) {
    WIN32_FIND_STREAM_DATA stream{};
    HANDLE search = FindFirstStreamW(LongName(path).c_str(), FindStreamInfoStandard, &stream, 0);
    if (search == INVALID_HANDLE_VALUE) {
        return false;
    }
    const bool isMore = FindNextStreamW(search, &stream) != 0;
    FindClose(search);
    return isMore;
}

bool TakeOverAttributes(const std::filesystem::path& from, const std::filesystem::path& to) {
    constexpr DWORD Settable = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    constexpr DWORD ByContent = FILE_ATTRIBUTE_COMPRESSED | FILE_ATTRIBUTE_ENCRYPTED;
    const DWORD old = GetFileAttributesW(LongName(from).c_str());
    const DWORD fresh = GetFileAttributesW(LongName(to).c_str());
    if (old == INVALID_FILE_ATTRIBUTES || fresh == INVALID_FILE_ATTRIBUTES || ((old ^ fresh) & ByContent) != 0) {
        return false;
    }
    return SetFileAttributesW(LongName(to).c_str(), (fresh & ~Settable) | (old & Settable)) != 0;
}

/// Whether another program may have the file open: a virus scanner, for one, that looks at it for a moment.
bool MayBeInUse(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_ACCESS_DENIED;
}

/// In one step, also on network drives, and on disk when it is done.
bool Rename(const std::wstring& from, const std::wstring& to) {
    constexpr int Attempts = 5;
    constexpr int Pause = 20; // milliseconds
    for (int attempt = 1; attempt <= Attempts; ++attempt) {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) {
            return true;
        }
        if (!MayBeInUse(GetLastError())) {
            return false;
        }
        QThread::msleep(Pause);
    }
    return false;
}

} // namespace

std::filesystem::path FilePathOf(std::string_view text) {
    const std::u16string utf16 = Utf16Of(text);
    const std::wstring full = utf16.empty() ? std::wstring() : FullName(std::wstring(utf16.begin(), utf16.end()));
    return full.starts_with(DeviceMark) ? std::filesystem::path() : std::filesystem::path(WithoutMark(full));
}

QString ToolkitName(const std::filesystem::path& path) {
    return QString::fromStdWString(path.generic_wstring());
}

std::optional<std::filesystem::path> LinkTarget(const std::filesystem::path& path) {
    const QFileInfo info(ToolkitName(path));
    return info.isSymbolicLink() ? std::optional(PathOfToolkitName(info.symLinkTarget())) : std::nullopt;
}

FileState StateOf(const std::filesystem::path& path) {
    const QFileInfo info(ToolkitName(path));
    if (!info.exists()) {
        return FileState::Missing;
    }
    return info.isWritable() ? FileState::Writable : FileState::ReadOnly;
}

bool IsNameFree(const std::filesystem::path& path) {
    return GetFileAttributesW(LongName(path).c_str()) == INVALID_FILE_ATTRIBUTES;
}

std::optional<std::vector<std::string>> FileNamesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    WIN32_FIND_DATAW entry{};
    HANDLE search = FindFirstFileW(LongName(folder / L"*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) { // in all folders but a drive's own there is something
        return GetLastError() == ERROR_FILE_NOT_FOUND ? std::optional(std::move(names)) : std::nullopt;
    }
    do {
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            const std::wstring_view name = entry.cFileName;
            names.push_back(Utf8Of(std::u16string(name.begin(), name.end())));
        }
    } while (FindNextFileW(search, &entry) != 0);
    const bool isWhole = GetLastError() == ERROR_NO_MORE_FILES;
    FindClose(search);
    return isWhole ? std::optional(std::move(names)) : std::nullopt;
}

std::string PathIn(const std::string& folder, const std::string& name) {
    const bool isEnded = folder.find_last_of("/\\:") == folder.size() - 1; // "C:" is a folder as well
    return folder + (isEnded ? "" : "/") + name;
}

bool LeadToSameFile(std::string_view left, std::string_view right) {
    const AskedFile leftFile(FilePathOf(left));
    const AskedFile rightFile(FilePathOf(right));
    const auto a = leftFile.Information();
    const auto b = rightFile.Information();
    return a && b && a->dwVolumeSerialNumber == b->dwVolumeSerialNumber && a->nFileIndexHigh == b->nFileIndexHigh &&
           a->nFileIndexLow == b->nFileIndexLow;
}

bool OpenRegularFile(QFile& file, const std::filesystem::path& path, QIODevice::OpenMode mode) {
    const QString name = ToolkitName(path);
    if (name.isEmpty() || !QFileInfo(name).isFile()) {
        return false;
    }
    file.setFileName(name);
    return file.open(mode | QIODevice::ExistingOnly);
}

bool HasOtherNames(const QFile& file) {
    const auto information = AskedFile(PathOfToolkitName(file.fileName())).Information();
    return information && information->nNumberOfLinks > 1;
}

bool TakeOverBelongings(const QFile& /*from*/, QFileDevice& /*to*/) {
    return true; // PutInPlace does it
}

bool SyncFile(QFileDevice& file) {
    const bool isFlushed = file.flush();
    const AskedFile same(PathOfToolkitName(file.fileName()), GENERIC_WRITE);
    return isFlushed && (!same.IsOpen() || same.Sync()); // nobody else opens a new file: the toolkit syncs that
}

// Not by the system's ReplaceFile, which takes over belongings by itself: on network drives it goes half the way and
// leaves files of its own behind.
bool PutInPlace(const std::filesystem::path& fresh, const std::filesystem::path& target) {
    const bool isFree = IsNameFree(target);
    if (!isFree &&
        (HasOtherStreams(target) || !TakeOverSecurity(target, fresh) || !TakeOverAttributes(target, fresh))) {
        return false;
    }
    return Rename(LongName(fresh), LongName(target));
}

bool SyncNameOf(const std::filesystem::path& /*target*/) {
    return true; // PutInPlace writes through
}

void RemoveFile(const std::filesystem::path& path) {
    DeleteFileW(LongName(path).c_str());
}

// An open file cannot be removed here. It is closed for a moment only before it is put in place; see below.
FileClaim::FileClaim(QFileDevice& /*file*/) {}

FileClaim::~FileClaim() = default;

void RemoveUnclaimedFile(const std::filesystem::path& path) {
    constexpr qint64 Age = 60; // seconds: a younger one may be about to be put in place
    const QDateTime changed = QFileInfo(ToolkitName(path)).lastModified();
    if (changed.isValid() && changed.secsTo(QDateTime::currentDateTime()) >= Age) {
        RemoveFile(path);
    }
}

} // namespace zelvor
