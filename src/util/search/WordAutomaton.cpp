#include "util/search/WordAutomaton.h"

#include "util/Text.h"

namespace {
constexpr size_t firstEdgeCount = 64;
constexpr size_t unitCount = 0x10000;
} // namespace

WordAutomaton::WordAutomaton(const QStringList &texts, Qt::CaseSensitivity sensitivity)
    : mFolds(sensitivity == Qt::CaseInsensitive), mNodes(1), mEdges(firstEdgeCount),
      mSameText(size_t(texts.size()), none), mBeginsText(unitCount)
{
    for (qsizetype index = 0; index < texts.size(); ++index)
        if (!texts[index].isEmpty())
            add(texts[index], int(index));
    linkFallbacks();
}

void WordAutomaton::add(QStringView text, int index)
{
    int node = root;
    for (const QChar unit : text)
        node = addChild(node, unit.unicode());
    mBeginsText[text.front().unicode()] = true;
    int *place = &mNodes[size_t(node)].text;
    while (*place != none)
        place = &mSameText[size_t(*place)];
    *place = index;
}

int WordAutomaton::addChild(int node, char16_t unit)
{
    if (const int known = child(node, unit); known != none)
        return known;
    if (mNodes.size() * 2 > mEdges.size())
        growEdges();
    const int added = int(mNodes.size());
    mNodes.push_back({unit, node});
    insertEdge({node, unit, added});
    return added;
}

void WordAutomaton::growEdges()
{
    std::vector<Edge> old(mEdges.size() * 2);
    old.swap(mEdges);
    for (const Edge &edge : old)
        if (edge.to != none)
            insertEdge(edge);
}

void WordAutomaton::insertEdge(Edge edge)
{
    mEdges[slotOf(edge.from, edge.unit)] = edge;
}

/// The slot of an edge, or the empty one where it would stand.
size_t WordAutomaton::slotOf(int node, char16_t unit) const
{
    constexpr quint64 spread = 0x9E3779B97F4A7C15U;
    constexpr int keptBits = 32;
    const size_t mask = mEdges.size() - 1; // a power of two
    size_t slot = size_t(((quint64(node) << 16 | unit) * spread) >> keptBits) & mask;
    while (mEdges[slot].to != none && (mEdges[slot].from != node || mEdges[slot].unit != unit))
        slot = (slot + 1) & mask;
    return slot;
}

int WordAutomaton::child(int node, char16_t unit) const
{
    return mEdges[slotOf(node, unit)].to;
}

/// The node behind `node` when `unit` is read.
int WordAutomaton::step(int node, char16_t unit) const
{
    for (; node != root; node = mNodes[size_t(node)].fallback)
        if (const int next = child(node, unit); next != none)
            return next;
    return mBeginsText[unit] ? child(root, unit) : root;
}

void WordAutomaton::linkFallbacks()
{
    // By length, so that the shorter ends are linked before they are asked for.
    std::vector<int> depth(mNodes.size());
    std::vector<std::vector<int>> byDepth(1);
    for (size_t node = 1; node < mNodes.size(); ++node) {
        depth[node] = depth[size_t(mNodes[node].parent)] + 1;
        byDepth.resize(std::max(byDepth.size(), size_t(depth[node]) + 1));
        byDepth[size_t(depth[node])].push_back(int(node));
    }
    for (const std::vector<int> &nodes : byDepth)
        for (const int index : nodes) {
            Node &node = mNodes[size_t(index)];
            node.fallback = node.parent == root ? root : step(mNodes[size_t(node.parent)].fallback, node.unit);
            const Node &shorter = mNodes[size_t(node.fallback)];
            node.report = shorter.text != none ? node.fallback : shorter.report;
        }
}

/// Closes the texts that end at `node`. A node that has been here once needs no second visit, nor do its shorter ends.
void WordAutomaton::reportTextsAt(int node, OpenTexts &open, std::vector<bool> &reported) const
{
    if (reported.empty())
        reported.resize(mNodes.size());
    for (; node != none && !reported[size_t(node)]; node = mNodes[size_t(node)].report) {
        reported[size_t(node)] = true;
        for (int text = mNodes[size_t(node)].text; text != none; text = mSameText[size_t(text)])
            if (open.isOpen(text))
                open.close(text);
    }
}

void WordAutomaton::scan(QStringView page, OpenTexts &open) const
{
    std::vector<bool> reported;
    int node = root;
    for (const QChar read : page) {
        const char16_t unit = mFolds ? cUtility::lowerUnit(read.unicode()) : read.unicode();
        if (node == root && !mBeginsText[unit])
            continue;
        node = step(node, unit);
        const Node &reached = mNodes[size_t(node)];
        if (reached.text == none && reached.report == none)
            continue;
        reportTextsAt(node, open, reported);
        if (open.isDecided())
            return;
    }
}
