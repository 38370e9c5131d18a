#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace fleetwright {

/// One change of the files of a folder. Paths are below it; the folder itself has none.
struct Change {
    enum class Kind { Make, MakeFolder, Write, Cut, Sync, Move, Swap, Link, Remove };

    Kind kind;
    std::string path = {};
    std::string other = {};  ///< where it is moved, swapped or linked to
    std::size_t offset = 0;  ///< of what is written, or the length that is left
    std::string bytes = {};
};

/// Paths and contents; both end in "/" for folders. Equal contents are one object.
using Files = std::map<std::string, const std::string*>;

const std::string* shared(std::string contents);

/// What of the changes that nobody had synced has reached the disk when the power goes. A disk is
/// free to take names in their order, or the last one before others, and bytes before or behind
/// names.
enum class NamesKept { Synced, SyncedAndLast, All };
enum class BytesKept { Synced, Half, All };

/// A disk that knows what it holds for certain, and what would be gone without power.
class Disk {
public:
    /// A disk that holds the files and folders of a real one for certain.
    explicit Disk(const Files& files);

    void apply(const Change& change);
    /// What is found after the power went now.
    Files files(NamesKept names, BytesKept bytes) const;

private:
    struct Node {
        bool isFolder = false;
        std::map<std::string, std::shared_ptr<Node>> names = {}, syncedNames = {};
        const std::string* bytes = shared("");
        const std::string* syncedBytes = bytes;
    };
    struct Naming {
        Node* folder;
        std::string name;
        std::shared_ptr<Node> node;  ///< none if the name was taken away
    };

    std::shared_ptr<Node> find(const std::filesystem::path& path) const;
    void name(const std::filesystem::path& path, const std::shared_ptr<Node>& node);
    void collect(const Node& folder, const std::string& path, NamesKept names, BytesKept bytes,
                 Files& files) const;

    std::shared_ptr<Node> m_root = std::make_shared<Node>(Node{true});
    std::vector<Naming> m_last;  ///< by the last change
};

/// The files and folders below a folder of the real disk.
Files readFolder(const std::filesystem::path& folder);

}  // namespace fleetwright
