#pragma once

#include "DesignMoment.h"
#include "ShipFileCheck.h"
#include "StoredSteps.h"
#include "momentDelta.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// What the user has done to designs, one step behind the other, to be undone and redone without
/// limit. A step takes a few dozen bytes: of a design only what has changed is kept, and words for
/// it are found when they are asked for.
///
/// Each design is in a document, which a new ship, a load or the like begins. All steps of a
/// document share its file: a Save As gives it to those as well that lead there. Of them those
/// count as saved that are as the file was written or read last.
class History {
public:
    /// What is known of the moment at which the window has come to rest.
    struct News {
        bool isReplaced = false;         ///< by another design
        bool isSaved = false;            ///< as it is now
        std::string_view kind;           ///< see `Acts::act`
        std::int32_t time = 0;           ///< milliseconds, as a Clock counts them
        std::string safe;                ///< what `RecoveryPanel` knows to be safe
        std::string came;                ///< of a new document: what has brought it, in words
        std::vector<ShipFinding> found;  ///< of a design that was loaded: what its file had wrong
    };

    History(const DesignMoment& start, const std::string& safe);

    /// The design as it is now.
    const DesignMoment& now() const { return m_now; }
    /// What the document's `News::safe` was last.
    const std::string& safe() const { return document().safe; }
    /// What the load of the document has found, until its file is written.
    const std::vector<ShipFinding>& found() const { return document().found; }

    /// The design has become this. That is a step if anything of it has changed; together with the
    /// last one if both are of one kind and no second lies between.
    void note(const DesignMoment& moment, const News& news);
    /// The design was put aside and is back: its own steps stand behind the one that has brought
    /// it, and in front of it.
    void adopt(const StoredSteps& steps, const DesignMoment& moment, const News& news);

    bool canUndo() const { return m_at > 0; }
    bool canRedo() const { return m_at + 1 < m_marks.size(); }
    /// What would be undone or redone, in words; only if there is anything.
    std::string undoName() const { return nameOf(m_at - 1, Way::Back); }
    std::string redoName() const { return nameOf(m_at, Way::Forth); }
    /// Goes a step back or forth, which there must be; the design then.
    const DesignMoment& undo() { return go(Way::Back); }
    const DesignMoment& redo() { return go(Way::Forth); }

    /// Whether the next step that way, which there must be, leads to another document.
    bool leavesDocument(Way way) const;
    /// Whether there are steps of this document to be redone.
    bool isAhead() const;

    /// The steps of this document, as far as they are put aside with it.
    StoredSteps steps() const;

    /// How many steps could be undone, and how many there are.
    std::size_t place() const { return m_at; }
    std::size_t count() const { return m_marks.size() - 1; }
    /// The bytes of memory that they take.
    std::size_t size() const;

private:
    /// A moment, and where the bytes of the step that has led there end.
    struct Mark {
        std::size_t end;
        std::uint32_t document;
        std::uint32_t savedAs;  ///< the version of the file that it is; 0 if it is none
    };
    struct Document {
        std::shared_ptr<const CatalogueText> catalogue;
        std::string safe;
        std::uint32_t g_sSaveName, g_sTrimmedFileName, origin, came;  ///< numbers of texts
        std::uint32_t version = 1;  ///< of the file; an older one is nowhere any more
        std::vector<ShipFinding> found;
    };

    Document& document() { return m_documents[m_marks[m_at].document]; }
    const Document& document() const { return m_documents[m_marks[m_at].document]; }
    std::string_view step(std::size_t number) const;
    std::uint32_t numberOf(const std::string& text);
    void setFile(Document& document, const ShipNames& names);
    void begin(const DesignMoment& moment, const News& news);
    bool joins(const News& news) const;
    void cut();
    void push(std::string_view delta);
    void arriveAt(const DesignMoment& moment, const News& news);
    void markSaved(const ShipNames& names);
    void markRead(const ShipNames& names, const std::string& safe);
    void loseFile(const ShipNames& names, const std::function<bool(const Document&)>& which);
    const DesignMoment& go(Way way);
    std::string nameOf(std::size_t number, Way way) const;

    std::string m_steps;
    std::vector<Mark> m_marks;  ///< one more than there are steps
    std::vector<Document> m_documents;
    std::map<std::string, std::uint32_t> m_numbers;  ///< each text once
    std::vector<const std::string*> m_texts;
    std::size_t m_at = 0;  ///< the mark of now
    DesignMoment m_now;
    std::string m_kind;  ///< of the last step, if another one may join it
    std::int32_t m_time = 0;
};

}  // namespace fleetwright
