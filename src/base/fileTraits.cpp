#include "fileTraits.h"

#include "OpenFile.h"
#include "fileCalls.h"

#include <optional>

#if __has_include(<unistd.h>)
#include <sys/stat.h>
#include <unistd.h>
#endif
#if __has_include(<sys/xattr.h>) && defined(__linux__)
#include <sys/xattr.h>

#include <algorithm>
#include <cerrno>
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

/// What a call that fills a buffer has to say, however much it grows meanwhile. Empty where a file
/// system knows no such thing.
template <typename Fill>
std::string filledBuffer(Fill fill, std::error_code& error) {
    std::string buffer;
    while (true) {
        const ssize_t size = fill(nullptr, 0);
        buffer.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
        const ssize_t got = size > 0 ? fill(buffer.data(), buffer.size()) : size;
        if (got >= 0) {
            buffer.resize(static_cast<std::size_t>(got));
            return buffer;
        }
        if (errno != ERANGE) {
            error = errno == ENOTSUP ? std::error_code() : lastError();
            return {};
        }
    }
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
    if (!error && fsetxattr(to.descriptor(), name.c_str(), value.data(), value.size(), 0) != 0) {
        error = lastError();
    }
    return error;
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
        if (!error && fremovexattr(to.descriptor(), accessList.data()) != 0) {
            error = lastError();
        }
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

#if __has_include(<unistd.h>)

/// Gives a file one of its two owners, unless it has it already.
std::error_code giveTo(OpenFile& file, FileCall call, uid_t owner, gid_t group, bool hasIt) {
    if (hasIt) {
        return {};
    }
    const std::error_code error = objection(call, file.path());
    return error || fchown(file.descriptor(), owner, group) == 0 ? error : lastError();
}

std::error_code copyOwnersAndMode(const OpenFile& from, OpenFile& to) {
    constexpr auto same = static_cast<uid_t>(-1);
    struct stat wanted {
    }, given{};
    std::error_code error = objection(FileCall::ReadTraits, from.path());
    if (!error && (fstat(from.descriptor(), &wanted) != 0 || fstat(to.descriptor(), &given) != 0)) {
        error = lastError();
    }
    if (!error) {
        error = giveTo(to, FileCall::SetOwner, wanted.st_uid, same, given.st_uid == wanted.st_uid);
    }
    if (!error) {
        error = giveTo(to, FileCall::SetGroup, same, wanted.st_gid, given.st_gid == wanted.st_gid);
    }
    return error ? error : to.setMode(fs::perms(wanted.st_mode) & fs::perms::mask);
}

#else

std::error_code copyOwnersAndMode(const OpenFile& from, OpenFile& to) {
    std::error_code error;
    const fs::file_status status = fs::status(from.path(), error);
    return error ? error : to.setMode(status.permissions());
}

#endif

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
