#include "Disk.h"

#include "readFile.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_set>

namespace fleetwright {

namespace fs = std::filesystem;

const std::string* shared(std::string contents) {
    static std::unordered_set<std::string> all;
    return &*all.insert(std::move(contents)).first;
}

Disk::Disk(const Files& files) {
    for (const auto& [path, contents] : files) {  // folders come before what is in them
        const auto node = std::make_shared<Node>();
        node->isFolder = path.ends_with('/');
        node->bytes = node->syncedBytes = contents;
        const fs::path whole = node->isFolder ? fs::path(path).parent_path() : fs::path(path);
        name(whole, node);
        const auto folder = find(whole.parent_path());
        folder->syncedNames = folder->names;
    }
}

std::shared_ptr<Disk::Node> Disk::find(const fs::path& path) const {
    std::shared_ptr<Node> found = m_root;
    for (const fs::path& part : path) {
        const auto name = found->names.find(part.string());
        if (name == found->names.end()) {
            return nullptr;
        }
        found = name->second;
    }
    return found;
}

/// Gives a name to a node, or takes it away.
void Disk::name(const fs::path& path, const std::shared_ptr<Node>& node) {
    const auto folder = find(path.parent_path());
    if (node == nullptr) {
        folder->names.erase(path.filename().string());
    } else {
        folder->names[path.filename().string()] = node;
    }
    m_last.push_back({folder.get(), path.filename().string(), node});
}

void Disk::apply(const Change& change) {
    using Kind = Change::Kind;
    const bool makes = change.kind == Kind::Make || change.kind == Kind::MakeFolder;
    const auto node = find(change.path);
    if (node == nullptr && !makes) {
        throw std::runtime_error("what was recorded of " + change.path + " cannot be");
    }
    m_last.clear();
    if (makes && node == nullptr) {
        name(change.path, std::make_shared<Node>(Node{change.kind == Kind::MakeFolder}));
    } else if (makes) {
        return;
    } else if (change.kind == Kind::Sync) {
        node->syncedNames = node->names;
        node->syncedBytes = node->bytes;
    } else if (change.kind == Kind::Write || change.kind == Kind::Cut) {
        std::string bytes = *node->bytes;
        const std::size_t end = change.offset + change.bytes.size();
        bytes.resize(change.kind == Kind::Cut ? end : std::max(bytes.size(), end));
        bytes.replace(change.offset, change.bytes.size(), change.bytes);
        node->bytes = shared(std::move(bytes));
    } else {
        const auto other = change.kind == Kind::Swap ? find(change.other) : nullptr;
        if (change.kind != Kind::Remove) {
            name(change.other, node);
        }
        if (change.kind != Kind::Link) {
            name(change.path, other);
        }
    }
}

void Disk::collect(const Node& folder, const std::string& path, NamesKept kept, BytesKept bytes,
                   Files& files) const {
    const auto* names = kept == NamesKept::All ? &folder.names : &folder.syncedNames;
    std::map<std::string, std::shared_ptr<Node>> withLast;
    for (const Naming& last : m_last) {
        if (kept == NamesKept::SyncedAndLast && last.folder == &folder) {
            if (names != &withLast) {
                withLast = *names;
                names = &withLast;
            }
            withLast[last.name] = last.node;
        }
    }
    static const std::string* const noBytes = shared("/");
    for (const auto& [name, node] : *names) {  // they come in their order, each behind all others
        // A file that has yet to get its name is called so.
        if (node == nullptr || name.starts_with('#')) {
            continue;
        }
        if (node->isFolder) {
            files.emplace_hint(files.end(), path + name + '/', noBytes);
            collect(*node, path + name + '/', kept, bytes, files);
        } else {
            const bool isCertain = node->bytes == node->syncedBytes || bytes == BytesKept::Synced;
            files.emplace_hint(files.end(), path + name,
                               isCertain ? node->syncedBytes
                               : bytes == BytesKept::All
                                   ? node->bytes
                                   : shared(node->bytes->substr(0, node->bytes->size() / 2)));
        }
    }
}

Files Disk::files(NamesKept names, BytesKept bytes) const {
    Files found;
    collect(*m_root, "", names, bytes, found);
    return found;
}

Files readFolder(const fs::path& folder) {
    Files files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const std::string path = entry.path().lexically_relative(folder).string();
        if (entry.is_directory()) {
            files[path + '/'] = shared("/");
        } else if (entry.is_regular_file()) {
            files[path] = shared(readBytes(entry.path()));
        }
    }
    return files;
}

}  // namespace fleetwright
