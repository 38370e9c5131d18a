#include "CatalogueCheck.h"

#include "Catalogue.h"
#include "SheetPictures.h"
#include "arcWords.h"
#include "formulaFault.h"
#include "text.h"

#include <algorithm>
#include <map>
#include <string>

namespace fleetwright {

namespace {

/// Goes through a catalogue from top to bottom, as the readers do, and keeps what it has seen.
class CatalogueChecker {
public:
    explicit CatalogueChecker(CatalogueCheck purpose) : m_purpose(purpose) {}

    std::vector<Fault> check(const CatalogueText& catalogue);

private:
    /// A key of the tree: whose it is, and whether anything stands under it.
    struct Node {
        int line = 0;  // 0 for what the program itself brings along
        bool isCategory = false;
        bool hasChild = false;
    };

    void checkRecord(const CatalogueLine& record);
    void checkName(std::string_view name);
    void checkFormula(std::string_view which, std::string_view formula);
    void checkArcs(std::string_view arcs);
    void checkRules(const CatalogueLine& record);
    void addNode(const std::string& key, const std::string& parent, bool isCategory);
    void checkWhole();
    void complain(std::string text) { m_faults.push_back({m_line, std::move(text)}); }
    /// Of what the program can live with.
    void remark(std::string text) {
        if (m_purpose == CatalogueCheck::All) {
            complain(std::move(text));
        }
    }

    std::map<std::string, Node, std::less<>> m_nodes;
    CatalogueCheck m_purpose;
    std::vector<Fault> m_faults;
    int m_line = 0;
};

std::vector<Fault> CatalogueChecker::check(const CatalogueText& catalogue) {
    for (const std::string_view root : catalogueRoots) {
        m_nodes[std::string(root)] = {.isCategory = true};
    }
    // Not in the tree, but among its pictures, which have the same keys.
    m_nodes[std::string(blankPictureKey)] = {.hasChild = true};

    for (const CatalogueLine& record : catalogue.lines()) {
        m_line = record.number;
        checkRecord(record);
        checkRules(record);
    }
    for (const int line : catalogue.strayRules()) {
        m_line = line;
        remark("the rules line stands behind no system");
    }
    checkWhole();
    return std::move(m_faults);
}

void CatalogueChecker::checkRecord(const CatalogueLine& record) {
    constexpr auto neededFields = 7;
    const auto fields = std::count(record.whole.begin(), record.whole.end(), ',') + 1;
    if (fields < neededFields) {
        remark("too few fields: " + std::to_string(fields) + " of seven");
        if (m_purpose == CatalogueCheck::All) {
            return;  // the rest would only follow from this
        }
    }
    const std::string categoryKey = toCapitals(record.categoryKey);
    if (record.isCategory()) {
        addNode(categoryKey, toCapitals(record.parentKey), true);
    } else {
        checkName(record.name);
        checkFormula("mass", record.massform);
        checkFormula("cost", record.costform);
        checkArcs(record.arclist);
        addNode(std::string(record.name), categoryKey, false);
    }
    if (record.icon.empty()) {
        remark("no picture");
    }
}

void CatalogueChecker::checkName(std::string_view name) {
    if (name.find(':') != std::string_view::npos) {
        remark("name " + quote(name) + " holds a colon, at which ship files are cut");
    }
    if (trimmed(name) != name) {
        remark("name " + quote(name) + " has blanks at its ends, which ship files lose");
    }
}

void CatalogueChecker::checkFormula(std::string_view which, std::string_view formula) {
    if (const auto fault = formulaFault(formula)) {
        complain(std::string(which) + " formula, column " + std::to_string(fault->column) + ": " +
                 fault->text);
    }
}

void CatalogueChecker::checkArcs(std::string_view arcs) {
    if (arcs.empty()) {
        remark("no arc letters");
    } else if (hasSheetPlace(arcs)) {
        const std::size_t other = arcs.find_first_not_of(sheetArcs);
        if (other != std::string_view::npos) {
            remark("unknown arc letter " + quote(arcs.substr(other, 1)));
        }
    }
}

void CatalogueChecker::checkRules(const CatalogueLine& record) {
    constexpr std::size_t most = 160;  // two lines of a printed sheet
    const std::size_t length = characterCount(record.rules);
    if (length > most) {
        m_line = record.number + 1;
        remark("the rules line has " + std::to_string(length) +
               " characters; a sheet has room for " + std::to_string(most));
    }
}

void CatalogueChecker::addNode(const std::string& key, const std::string& parent, bool isCategory) {
    const std::string what = isCategory ? "category" : "system";
    const auto above = m_nodes.find(parent);
    if (above == m_nodes.end() || !above->second.isCategory) {
        complain("unknown parent " + quote(parent) + ": no root word, and no category above");
    } else {
        above->second.hasChild = true;
    }
    if (key.empty()) {
        complain(what + " without a " + (isCategory ? "key" : "name"));
        return;
    }
    const auto [node, isNew] = m_nodes.try_emplace(key, Node{m_line, isCategory, !isCategory});
    if (isNew) {
        return;
    }
    if (node->second.line == 0) {
        complain(what + " " + quote(key) + " has the name of a root word or of BLANK");
    } else {
        complain("double key " + quote(key) + ": also in line " +
                 std::to_string(node->second.line));
    }
}

void CatalogueChecker::checkWhole() {
    if (m_purpose == CatalogueCheck::Start) {
        return;
    }
    for (const auto& [key, node] : m_nodes) {
        if (!node.hasChild) {
            m_faults.push_back({node.line, "nothing stands under " + quote(key)});
        }
    }
    sortByLine(m_faults);
    // The rules and the sheets know these two by their names.
    for (const std::string_view name : {Catalogue::cloakName, Catalogue::partyName}) {
        if (!m_nodes.contains(name)) {
            m_faults.push_back({0, "no system " + quote(name)});
        }
    }
}

}  // namespace

std::vector<Fault> checkCatalogue(const CatalogueText& catalogue, CatalogueCheck purpose) {
    return CatalogueChecker(purpose).check(catalogue);
}

}  // namespace fleetwright
