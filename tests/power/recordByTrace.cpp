// Reads what strace writes of the calls that change files. With -xx all paths and bytes are in
// hexadecimal, the paths of descriptors in angle brackets, so that these brackets and quotation
// marks hold nothing else.

#include "TemporaryFolder.h"
#include "caseFile.h"
#include "recorders.h"
#include "runCommand.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

using Does = Change::Kind;

const std::map<std::string, Does> calls = {
    {"open", Does::Make},          {"openat", Does::Make},     {"mkdir", Does::MakeFolder},
    {"mkdirat", Does::MakeFolder}, {"write", Does::Write},     {"writev", Does::Write},
    {"pwrite64", Does::Write},     {"ftruncate", Does::Cut},   {"fsync", Does::Sync},
    {"fdatasync", Does::Sync},     {"rename", Does::Move},     {"renameat", Does::Move},
    {"renameat2", Does::Move},     {"link", Does::Link},       {"linkat", Does::Link},
    {"unlink", Does::Remove},      {"unlinkat", Does::Remove}, {"rmdir", Does::Remove}};

/// "\x41b" is "Ab".
std::string decoded(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        const bool isHex = text.starts_with("\\x");
        bytes += isHex ? static_cast<char>(std::stoi(std::string(text.substr(2, 2)), nullptr, 16))
                       : text.front();
        text.remove_prefix(isHex ? 4 : 1);
    }
    return bytes;
}

/// A call as it stands in the trace.
struct Call {
    explicit Call(const std::string& line) {
        const std::size_t equals = std::min(line.rfind(" = "), line.size());
        name = line.substr(0, line.find('('));
        arguments = line.substr(0, equals);
        returned = line.substr(equals);
        std::string folder;  // a path is relative to the descriptor before it
        for (std::size_t at = 0, end = 0; (at = line.find_first_of("\"<", at)) < line.size();
             at = end + 1) {
            end = line.find(line[at] == '"' ? '"' : '>', at + 1);
            const std::string piece = decoded(line.substr(at + 1, end - at - 1));
            if (line[at] == '"') {
                texts += piece;
                paths.push_back(fs::path(folder) / piece);
            } else if (at < equals) {
                folder = piece;
            } else {
                opened = piece;
            }
        }
        if (paths.empty() || name.find("write") != std::string::npos) {
            paths = {folder};
        }
    }

    long result() const { return returned.empty() ? -1 : std::atol(returned.c_str() + 3); }
    bool has(const char* flag) const { return arguments.find(flag) != std::string::npos; }
    std::size_t lastNumber() const {
        return std::stoul(arguments.substr(arguments.rfind(", ") + 2));
    }

    std::string name, arguments, returned, texts;
    std::vector<fs::path> paths;
    fs::path opened;
};

/// Makes changes of calls.
class Trace {
public:
    explicit Trace(fs::path folder) : m_folder(std::move(folder)) {}

    /// Takes a line. A call may be cut in two by those of other processes.
    void read(const std::string& line) {
        const auto [process, text] = cut(line);
        std::string said = text.substr(std::min(text.find_first_not_of(' '), text.size()));
        if (said.starts_with("<... ")) {
            said = m_begun[process] + said.substr(said.find('>') + 1);
        }
        const auto kind = calls.find(said.substr(0, said.find('(')));
        if (const auto end = said.find(" <unfinished"); end != std::string::npos) {
            m_begun[process] = said.substr(0, end);
        } else if (kind != calls.end()) {
            const Call call(said);
            if (call.result() >= 0) {
                take(kind->second, call);
            }
        }
    }

    std::vector<Change> changes;

private:
    void take(Does kind, const Call& call) {
        const fs::path& path = call.paths.front();
        if (kind == Does::Make) {
            takeOpen(call);
        } else if (kind == Does::Write) {
            std::size_t& place = m_places[path];
            place = call.name == "pwrite64" ? call.lastNumber() : place;
            const auto size = static_cast<std::size_t>(call.result());
            note({kind, {}, {}, place, call.texts.substr(0, size)}, path);
            place += size;
        } else if (call.paths.size() == 1) {
            note({kind, {}, {}, kind == Does::Cut ? call.lastNumber() : 0}, path);
        } else if (const auto first = m_nameless.find(path); first != m_nameless.end()) {
            note({Does::Move, {}, below(call.paths.back())}, first->second);
        } else {
            const bool swaps = call.has("RENAME_EXCHANGE");
            note({swaps ? Does::Swap : kind, {}, below(call.paths.back())}, path);
        }
    }

    void takeOpen(const Call& call) {
        m_places[call.opened] = 0;
        if (call.has("O_TMPFILE")) {
            m_nameless["/proc/self/fd/" + std::to_string(call.result())] = call.opened;
        }
        if (call.has("O_CREAT") || call.has("O_TMPFILE")) {
            note({Does::Make}, call.opened);
        }
        if (call.has("O_TRUNC")) {
            note({Does::Cut}, call.opened);
        }
    }

    std::string below(const fs::path& path) const {
        const fs::path relative = (m_folder / path).lexically_normal().lexically_relative(m_folder);
        return relative == "." ? "" : relative.string();
    }

    void note(Change change, const fs::path& path) {
        change.path = below(path);
        const bool isPipe = path.string().find(":[") != std::string::npos;  // "pipe:[123]"
        if (!isPipe && !change.path.starts_with("..")) {
            changes.push_back(std::move(change));
        }
    }

    fs::path m_folder;
    std::map<std::string, std::string> m_begun;  // calls by their process
    std::map<fs::path, std::size_t> m_places;    // where the next write goes
    std::map<fs::path, fs::path> m_nameless;     // files that get their names later
};

}  // namespace

std::optional<std::vector<Change>> recordByTrace(const fs::path& folder,
                                                 const std::string& command) {
    const TemporaryFolder kept;
    const std::string script = kept.write("script", command);
    std::string names;
    for (const auto& [name, kind] : calls) {
        names += (names.empty() ? "?" : ",?") + name;  // no machine has all of them
    }
    const std::string trace = (kept.path() / "trace").string();
    const CommandResult result = runCommand("cd '" + folder.string() +
                                            "' && strace -f -y -xx -s 100000000 -e trace=" + names +
                                            " -o " + trace + " sh " + script);
    Trace read(folder);
    const std::vector<std::string> lines = linesOf(kept.read("trace"));
    if (lines.empty()) {
        return std::nullopt;
    }
    if (result.status != 0) {
        throw std::runtime_error(result.output);
    }
    for (const std::string& line : lines) {
        read.read(line);
    }
    return std::move(read.changes);
}

}  // namespace fleetwright
