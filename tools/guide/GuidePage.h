#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

struct cmark_node;

namespace fleetwright {

/// One page of the guide, from Markdown, with tables, to HTML.
class GuidePage {
public:
    /// Throws FileError.
    explicit GuidePage(std::filesystem::path file);

    const std::filesystem::path& file() const { return m_file; }
    /// The heading of the page.
    const std::string& title() const { return m_title; }
    /// The name of the page for browsers.
    std::string htmlName() const { return m_file.stem().string() + ".html"; }
    /// The pages in Markdown that it leads to, in their order, a page once.
    std::vector<std::filesystem::path> linkedPages() const;
    /// The pictures on it.
    std::vector<std::filesystem::path> pictures() const;
    /// Whether it has a heading to which a link ends in "#" and this.
    bool hasHeading(const std::string& anchor) const;

    /// What stands between the tags of the page's body. Links lead to the pages given; those to
    /// others, which are for other readers, become plain text. To be called once. Throws FileError
    /// where one leads nowhere.
    std::string html(const std::vector<GuidePage>& pages);

private:
    struct Free {
        void operator()(cmark_node* root) const;
    };
    /// All nodes of a kind.
    std::vector<cmark_node*> nodes(unsigned kind) const;
    /// The file that the address of a link or a picture means. Throws FileError if there is none.
    std::filesystem::path target(cmark_node* node) const;
    /// Has a link lead to what a browser finds.
    void lead(cmark_node* link, const std::vector<GuidePage>& pages) const;

    std::filesystem::path m_file;
    std::unique_ptr<cmark_node, Free> m_root;
    std::string m_title;
};

}  // namespace fleetwright
