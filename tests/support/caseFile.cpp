#include "caseFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

namespace fleetwright {

namespace {

constexpr const char* result = "makes";

bool endsPath(char c) {
    return c == ';' || c == ':' || c == '"' || c == '\n';
}

std::string withoutLastEnds(std::string text) {
    text.erase(text.find_last_not_of('\n') + 1);
    return text;
}

std::vector<Case> readCases(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::vector<Case> cases;
    for (const std::string& line : linesOf({std::istreambuf_iterator<char>(file), {}})) {
        if (line.starts_with("=== ")) {
            cases.push_back({.title = line.substr(4), .texts = {}});
        } else if (line.starts_with("--- ")) {
            cases.back().texts.emplace_back(line.substr(4), "");
        } else if (!cases.back().texts.empty()) {
            cases.back().texts.back().second += line + '\n';
        }
    }
    return cases;
}

}  // namespace

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::string Case::operator[](const std::string& name) const {
    for (const auto& [known, text] : texts) {
        if (known == name) {
            return withoutLastEnds(text);
        }
    }
    return {};
}

void expectCases(const std::string& file, const std::function<std::string(const Case&)>& act) {
    const std::filesystem::path path = SOURCE_FOLDER "/tests/" + file;
    const std::vector<Case> cases = readCases(path);
    EXPECT_FALSE(cases.empty()) << path << " holds no case";
    std::string renewed;
    for (const Case& each : cases) {
        const std::string made = withoutLastEnds(act(each));
        EXPECT_EQ(made, each[result]) << file << ": " << each.title;
        renewed += "=== " + each.title + '\n';
        for (const auto& [name, text] : each.texts) {
            renewed += "--- " + name + '\n' + (name == result ? made + "\n\n" : text);
        }
    }
    if (testing::Test::HasFailure()) {
        // Of another name in each run, since several may run at once.
        const std::string kept = testing::TempDir() + std::to_string(std::random_device()()) + '-' +
                                 path.filename().string();
        std::ofstream(kept, std::ios::binary) << renewed.substr(0, renewed.size() - 1);
        ADD_FAILURE() << "what " << file << " would be now stands in " << kept;
    }
}

std::string playActs(const std::string& acts, const Stage& stage) {
    std::string text;
    std::map<std::string, std::string> before = stage.look();
    for (const std::string& act : linesOf(acts)) {
        EXPECT_NO_THROW(stage.act(act)) << act;
        std::string changes = stage.takeLog();
        std::map<std::string, std::string> seen = stage.look();
        for (const auto& [name, value] : before) {
            seen.emplace(name, "gone");
        }
        for (const auto& [name, value] : seen) {
            const auto [old, isNew] = before.try_emplace(name);
            if (isNew || old->second != value) {
                changes += name + ": " + (value.empty() ? "-" : value) + "; ";
                old->second = value;
            }
        }
        changes.erase(changes.find_last_not_of("; \n") + 1);
        text += "> " + act + '\n';
        text += changes.empty() ? "" : "  " + replaced(changes, "\n", " | ") + '\n';
    }
    return inAppFolder(std::move(text), stage.folder);
}

std::string inAppFolder(std::string text, const std::string& folder) {
    text = replaced(std::move(text), folder, "APP");
    for (std::size_t at = 0; (at = text.find("APP", at)) != std::string::npos; ++at) {
        const auto path = text.begin() + static_cast<std::ptrdiff_t>(at);
        std::replace(path, std::find_if(path, text.end(), endsPath), '\\', '/');
    }
    return text;
}

std::pair<std::string, std::string> cut(const std::string& text) {
    const std::size_t end = std::min(text.find(' '), text.size());
    return {text.substr(0, end), text.substr(std::min(end + 1, text.size()))};
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size()) {
        text.replace(at, what.size(), by);
    }
    return text;
}

}  // namespace fleetwright
