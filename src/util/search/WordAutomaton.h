// Looks for any number of texts in one walk over a page: each unit is read once, and what was read before tells which
// texts may be under way (the automaton of Aho and Corasick). Linear in page and texts, whatever they hold. Knows
// nobody.
#pragma once

#include "util/search/OpenTexts.h"

#include <QStringList>
#include <vector>

class WordAutomaton
{
  public:
    /// With case ignored the texts are lower-cased already. Empty texts are left out: they are the caller's.
    WordAutomaton(const QStringList &texts, Qt::CaseSensitivity sensitivity);

    /// Reads `page` and closes each open text that it comes upon, until the look is decided.
    void scan(QStringView page, OpenTexts &open) const;

  private:
    static constexpr int none = -1;
    static constexpr int root = 0;

    /// What has been read of some texts: the units on the way from the root.
    struct Node
    {
        char16_t unit = 0;
        int parent = none;
        int fallback = root; // the longest shorter end of it that is a node as well
        int text = none;     // the first text that it is
        int report = none;   // the longest shorter end of it that is a text
    };

    /// One edge of the tree in an open-addressed table.
    struct Edge
    {
        int from = none;
        char16_t unit = 0;
        int to = none;
    };

    void add(QStringView text, int index);
    int addChild(int node, char16_t unit);
    void growEdges();
    void insertEdge(Edge edge);
    void linkFallbacks();
    [[nodiscard]] size_t slotOf(int node, char16_t unit) const;
    [[nodiscard]] int child(int node, char16_t unit) const;
    [[nodiscard]] int step(int node, char16_t unit) const;
    void reportTextsAt(int node, OpenTexts &open, std::vector<bool> &reported) const;

    bool mFolds;
    std::vector<Node> mNodes;
    std::vector<Edge> mEdges;
    std::vector<int> mSameText;    // the next text that is equal to a text
    std::vector<bool> mBeginsText; // by unit
};
