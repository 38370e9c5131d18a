#include "GuidePage.h"

#include "Error.h"
#include "readFile.h"
#include "text.h"

#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <string_view>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

cmark_node* parsed(const std::string& markdown) {
    cmark_gfm_core_extensions_ensure_registered();
    cmark_parser* const parser = cmark_parser_new(CMARK_OPT_DEFAULT);
    cmark_parser_attach_syntax_extension(parser, cmark_find_syntax_extension("table"));
    cmark_parser_feed(parser, markdown.data(), markdown.size());
    cmark_node* const root = cmark_parser_finish(parser);
    cmark_parser_free(parser);
    return root;
}

/// The text of a node without its marks.
std::string textIn(cmark_node* node) {
    const char* const literal = cmark_node_get_literal(node);
    std::string text = literal == nullptr ? "" : literal;
    for (cmark_node* child = cmark_node_first_child(node); child != nullptr;
         child = cmark_node_next(child)) {
        text += textIn(child);
    }
    return text;
}

/// How links name a heading: in small letters, with hyphens for blanks, without signs.
std::string anchorOf(const std::string& heading) {
    std::string anchor;
    for (const char c : heading) {
        if (c == ' ' || c == '-') {
            anchor += '-';
        } else if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
            anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    return anchor;
}

/// An address in the parts before and behind "#".
std::pair<std::string, std::string> cutAddress(const char* address) {
    const std::string whole = address;
    const std::size_t sign = std::min(whole.find('#'), whole.size());
    return {whole.substr(0, sign), whole.substr(std::min(sign + 1, whole.size()))};
}

/// Puts what a link shows into its place.
void unlink(cmark_node* link) {
    while (cmark_node* const shown = cmark_node_first_child(link)) {
        cmark_node_insert_before(link, shown);
    }
    cmark_node_unlink(link);
    cmark_node_free(link);
}

}  // namespace

void GuidePage::Free::operator()(cmark_node* root) const {
    cmark_node_free(root);
}

GuidePage::GuidePage(fs::path file) : m_file(std::move(file)), m_root(parsed(readBytes(m_file))) {
    const std::vector<cmark_node*> headings = nodes(CMARK_NODE_HEADING);
    if (headings.empty()) {
        throw FileError(m_file, "has no heading");
    }
    m_title = textIn(headings.front());
}

std::vector<cmark_node*> GuidePage::nodes(unsigned kind) const {
    std::vector<cmark_node*> found;
    cmark_iter* const iterator = cmark_iter_new(m_root.get());
    while (cmark_iter_next(iterator) != CMARK_EVENT_DONE) {
        cmark_node* const node = cmark_iter_get_node(iterator);
        if (cmark_iter_get_event_type(iterator) == CMARK_EVENT_ENTER &&
            cmark_node_get_type(node) == kind) {
            found.push_back(node);
        }
    }
    cmark_iter_free(iterator);
    return found;
}

fs::path GuidePage::target(cmark_node* node) const {
    const std::string address = cutAddress(cmark_node_get_url(node)).first;
    fs::path file = address.empty() ? m_file : (m_file.parent_path() / address).lexically_normal();
    if (!fs::is_regular_file(file)) {
        throw FileError(m_file, "leads nowhere: " + quote(cmark_node_get_url(node)));
    }
    return file;
}

std::vector<fs::path> GuidePage::linkedPages() const {
    std::vector<fs::path> found;
    for (cmark_node* const link : nodes(CMARK_NODE_LINK)) {
        const fs::path page = target(link);
        if (page != m_file && std::find(found.begin(), found.end(), page) == found.end()) {
            found.push_back(page);
        }
    }
    return found;
}

std::vector<fs::path> GuidePage::pictures() const {
    std::vector<fs::path> found;
    for (cmark_node* const image : nodes(CMARK_NODE_IMAGE)) {
        found.push_back(target(image));
    }
    return found;
}

bool GuidePage::hasHeading(const std::string& anchor) const {
    const std::vector<cmark_node*> headings = nodes(CMARK_NODE_HEADING);
    return std::any_of(headings.begin(), headings.end(), [&anchor](cmark_node* heading) {
        return anchorOf(textIn(heading)) == anchor;
    });
}

void GuidePage::lead(cmark_node* link, const std::vector<GuidePage>& pages) const {
    const std::string anchor = cutAddress(cmark_node_get_url(link)).second;
    const fs::path file = target(link);
    const auto page = std::find_if(pages.begin(), pages.end(),
                                   [&file](const GuidePage& each) { return each.file() == file; });
    if (page == pages.end()) {
        unlink(link);
        return;
    }
    if (!anchor.empty() && !page->hasHeading(anchor)) {
        throw FileError(m_file, "leads to no heading: " + quote(cmark_node_get_url(link)));
    }
    const std::string address = page->htmlName() + (anchor.empty() ? "" : '#' + anchor);
    cmark_node_set_url(link, address.c_str());
}

std::string GuidePage::html(const std::vector<GuidePage>& pages) {
    for (cmark_node* const image : nodes(CMARK_NODE_IMAGE)) {
        cmark_node_set_url(image, target(image).filename().string().c_str());
    }
    std::vector<std::string> anchors;
    for (cmark_node* const heading : nodes(CMARK_NODE_HEADING)) {
        anchors.push_back(anchorOf(textIn(heading)));
    }
    for (cmark_node* const link : nodes(CMARK_NODE_LINK)) {
        lead(link, pages);
    }
    cmark_llist* const extensions = cmark_llist_append(cmark_get_default_mem_allocator(), nullptr,
                                                       cmark_find_syntax_extension("table"));
    char* const rendered = cmark_render_html(m_root.get(), CMARK_OPT_DEFAULT, extensions);
    std::string html = rendered;
    std::free(rendered);
    cmark_llist_free(cmark_get_default_mem_allocator(), extensions);
    // The renderer knows no anchors.
    auto anchor = anchors.begin();
    for (std::size_t at = html.find("<h"); at != std::string::npos; at = html.find("<h", at + 1)) {
        const std::size_t end = at + std::string_view("<h1").size();
        if (html.compare(end, 1, ">") == 0 && html[end - 1] >= '1' && html[end - 1] <= '6') {
            html.insert(end, " id=\"" + *anchor++ + '"');
        }
    }
    return html;
}

}  // namespace fleetwright
