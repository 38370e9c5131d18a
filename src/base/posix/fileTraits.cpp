#include "fileTraits.h"

#include "OpenFile.h"
#include "fileCalls.h"

#include <optional>

#include <sys/stat.h>
#include <unistd.h>
#if __has_include(<sys/xattr.h>) && defined(__linux__)
#include <sys/xattr.h>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <string>
#include <string_view>
#include <vector>
#endif

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

#if __has_include(<sys/xattr.h>) && defined(__linux__)

constexpr std::string_view accessList = "system.posix_acl_access";

/// Whether an attribute is the user's own word, and not the system's.
bool isOfUser(std::string_view name) {
    return name == accessList || name.starts_with("user.");
}

/// Whether an attribute holds for the contents, and so not for new ones.
bool isOfContents(std::string_view name) {
    return name == "security.capability" || name == "security.ima" || name == "security.evm";
}

/// What a call has to say that fills a buffer and, without one, says how much it needs. Empty where
/// a file system knows no such thing.
std::string filledBuffer(const std::function<ssize_t(char*, std::size_t)>& fill,
                         std::error_code& error) {
    ssize_t size = fill(nullptr, 0);
    std::string buffer(static_cast<std::size_t>(std::max<ssize_t>(size, 0)), '\0');
    size = buffer.empty() ? size : fill(buffer.data(), buffer.size());
    error = errorUnless(size >= 0 || errno == ENOTSUP);
    buffer.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    return buffer;
}

std::vector<std::string> attributeNames(const OpenFile& file, std::error_code& error) {
    const std::string list = filledBuffer(
        [&](char* buffer, std::size_t size) { return flistxattr(file.descriptor(), buffer, size); },
        error);
    std::vector<std::string> names;
    for (std::size_t at = 0; at < list.size(); at += names.back().size() + 1) {
        names.emplace_back(list.c_str() + at);
    }
    return names;
}

std::error_code copyAttribute(const OpenFile& from, OpenFile& to, const std::string& name) {
    std::error_code error;
    const std::string value = filledBuffer(
        [&](char* buffer, std::size_t size) {
            return fgetxattr(from.descriptor(), name.c_str(), buffer, size);
        },
        error);
    error = error ? error : objection(FileCall::SetAttribute, to.path());
    return error ? error
                 : errorUnless(fsetxattr(to.descriptor(), name.c_str(), value.data(), value.size(),
                                         0) == 0);
}

std::error_code copyAttributes(const OpenFile& from, OpenFile& to) {
    std::error_code error;
    const std::vector<std::string> names = attributeNames(from, error);
    const auto isIn = [](const std::vector<std::string>& list, std::string_view name) {
        return std::find(list.begin(), list.end(), name) != list.end();
    };
    // A folder may hand a list of access rights on to each new file in it.
    if (!error && !isIn(names, accessList) && isIn(attributeNames(to, error), accessList)) {
        error = objection(FileCall::SetAttribute, to.path());
        error = error ? error : errorUnless(fremovexattr(to.descriptor(), accessList.data()) == 0);
    }
    for (const std::string& name : names) {
        if (error) {
            break;
        }
        if (!isOfContents(name)) {
            const std::error_code notKept = copyAttribute(from, to, name);
            error = isOfUser(name) ? notKept : error;
        }
    }
    return error;
}

#else

std::error_code copyAttributes(const OpenFile&, OpenFile&) {
    return {};
}

#endif

/// Gives a file one of its two owners, unless it has it already.
std::error_code giveTo(OpenFile& file, FileCall call, uid_t owner, gid_t group, bool hasIt) {
    if (hasIt) {
        return {};
    }
    const std::error_code error = objection(call, file.path());
    return error ? error : errorUnless(fchown(file.descriptor(), owner, group) == 0);
}

std::error_code copyOwnersAndMode(const OpenFile& from, OpenFile& to) {
    constexpr auto same = static_cast<uid_t>(-1);
    struct stat wanted{};
    struct stat given{};
    std::error_code error = objection(FileCall::ReadTraits, from.path());
    error = error ? error
                  : errorUnless(fstat(from.descriptor(), &wanted) == 0 &&
                                fstat(to.descriptor(), &given) == 0);
    if (!error) {
        error = giveTo(to, FileCall::SetOwner, wanted.st_uid, same, given.st_uid == wanted.st_uid);
    }
    if (!error) {
        error = giveTo(to, FileCall::SetGroup, same, wanted.st_gid, given.st_gid == wanted.st_gid);
    }
    // Some file systems have one mode for all files and let nobody set it.
    const bool hasMode = given.st_mode == wanted.st_mode;
    return error || hasMode ? error : to.setMode(fs::perms(wanted.st_mode) & fs::perms::mask);
}

}  // namespace

std::error_code copyTraits(const fs::path& from, OpenFile& to) {
    std::error_code error;
    std::optional<OpenFile> source(std::in_place, from, OpenFile::Use::Read, error);
    if (error == std::errc::permission_denied) {  // there are files to be written only
        source.emplace(from, OpenFile::Use::Write, error);
    }
    error = error ? error : copyOwnersAndMode(*source, to);
    return error ? error : copyAttributes(*source, to);
}

}  // namespace fleetwright
