#pragma once

// What the program asks of the system about files: whatever reads or changes a disk goes through
// these few functions and `OpenFile`, so that tests can have any of it fail.
//
// None of them throws; the error is empty where all went well.

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace fleetwright {

/// The kinds of calls.
enum class FileCall {
    Open,
    Create,
    Read,
    Write,
    Resize,
    Sync,
    Close,
    Lock,
    ReadTraits,  ///< owner, group, mode, extended attributes
    SetOwner,
    SetGroup,
    SetMode,
    SetAttribute,
    SyncFolder,
    Rename,
    Exchange,  ///< of two names; the path is the second one's
    Remove,
    RemoveTree,
    MakeFolder,
    MakeLink,
    ListFolder,
};

/// Hears of a call before it is made. If it returns an error, the call is not made and ends in
/// that.
using FileCallHook = std::function<std::error_code(FileCall, const std::filesystem::path&)>;

/// Has all calls go by this hook from now on; by none, as in the program, if it is empty. For
/// tests, while no other thread works on files.
void hookFileCalls(FileCallHook hook);

/// What the hook has against a call. For those who make a call of their own to the system.
std::error_code objection(FileCall call, const std::filesystem::path& path);

/// What `errno` says.
std::error_code lastError();
/// The same of a call that was not done; empty after one that was.
std::error_code errorUnless(bool isDone);

/// Why what stands there cannot be read or saved as a file, in the words that the reader and the
/// saver share: a folder "Is a directory", a pipe, a device or a socket is "Not a plain file".
/// Empty for a plain file, and for what is not there.
std::error_code whyNoFile(const std::filesystem::file_status& status);

/// Renames a file or a folder, over what has that name already.
std::error_code renameFile(const std::filesystem::path& from, const std::filesystem::path& to);
/// The same, so that it outlasts a power cut: the folders of both names are synced. An error may
/// then mean that it is renamed, but not for sure.
std::error_code renameForGood(const std::filesystem::path& from, const std::filesystem::path& to);
/// The same, but never over anything: fails with `file_exists`.
std::error_code renameToNew(const std::filesystem::path& from, const std::filesystem::path& to);

/// Gives two entries each other's names in one step, so that it outlasts a power cut. Fails with
/// `function_not_supported` where the system cannot do that.
std::error_code exchangeForGood(const std::filesystem::path& one,
                                const std::filesystem::path& other);

/// Takes a file, a link or an empty folder away. No error if there is none.
std::error_code removeFile(const std::filesystem::path& file);
/// The same, so that it outlasts a power cut.
std::error_code removeForGood(const std::filesystem::path& file);
/// Takes a folder away with all that is in it, or a file; links are not followed.
std::error_code removeTree(const std::filesystem::path& folder);

/// Makes one folder. Fails with `file_exists` if there is something of that name. To outlast a
/// power cut, the folder that it stands in has to be synced.
std::error_code makeNewFolder(const std::filesystem::path& folder);
/// Makes one folder likewise that nobody but the user may look into.
std::error_code makeNewPrivateFolder(const std::filesystem::path& folder);
/// Makes a symbolic link.
std::error_code makeLink(const std::filesystem::path& to, const std::filesystem::path& link);
/// Makes a second name for a file.
std::error_code makeTwin(const std::filesystem::path& file, const std::filesystem::path& twin);
/// Says who may do what with a folder.
std::error_code setFolderMode(const std::filesystem::path& folder, std::filesystem::perms mode);

/// Makes sure that names which were given or taken away in a folder outlast a power cut. An empty
/// path is the current folder.
std::error_code syncFolder(const std::filesystem::path& folder);

/// The entries of a folder in no order; an empty path is the current folder.
std::vector<std::filesystem::directory_entry> folderEntries(const std::filesystem::path& folder,
                                                            std::error_code& error);

}  // namespace fleetwright
