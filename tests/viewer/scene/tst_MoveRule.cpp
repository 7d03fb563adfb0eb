// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/scene/ServiceTest.h"

#include <random>

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

/// The rule once more, written for being read and not for speed: names in nested lists, no ids, no
/// rows kept, every question answered by walking the tree.
struct Plain
{
    QString name;
    char kind; // 'a' overlay, 'g' group, 's' switch
    bool enabled = true;
    std::vector<Plain> children;
};

Plain *findPlain(Plain &top, const QString &name)
{
    if (top.name == name)
        return &top;
    for (Plain &child : top.children) {
        if (Plain *found = findPlain(child, name))
            return found;
    }
    return nullptr;
}

Plain *parentOf(Plain &top, const QString &name)
{
    for (Plain &child : top.children) {
        if (child.name == name)
            return &top;
        if (Plain *found = parentOf(child, name))
            return found;
    }
    return nullptr;
}

int rowOf(const Plain &parent, const QString &name)
{
    for (int row = 0; row < int(parent.children.size()); ++row) {
        if (parent.children[std::size_t(row)].name == name)
            return row;
    }
    return -1;
}

QString textOf(const Plain &parent)
{
    QStringList texts;
    for (const Plain &child : parent.children) {
        QString text = child.name + (child.enabled ? "" : "-");
        if (child.kind == 'g')
            text += '(' + textOf(child) + ')';
        if (child.kind == 's')
            text += '{' + textOf(child) + '}';
        texts.append(text);
    }
    return texts.join(' ');
}

QStringList travellers(Plain &root, const QStringList &names, const QString &target)
{
    QStringList result;
    for (const QString &name : names) {
        Plain *node = name == "root" ? nullptr : findPlain(root, name);
        bool travelsInside = false;
        for (const QString &other : names) {
            Plain *holder = other == name || other == "root" ? nullptr : findPlain(root, other);
            travelsInside = travelsInside || (holder && parentOf(*holder, name));
        }
        if (node && !travelsInside && !result.contains(name) && !findPlain(*node, target))
            result.append(name);
    }
    return result;
}

void moveNaively(Plain &root, const QStringList &names, const QString &target, int row)
{
    const QStringList moving = travellers(root, names, target);
    Plain *parent = findPlain(root, target);
    if (!parent || parent->kind == 'a' || moving.isEmpty())
        return;

    const int count = int(parent->children.size());
    if (row < 0 || row > count)
        row = count;
    while (row < count && moving.contains(parent->children[std::size_t(row)].name))
        ++row;
    const QString anchor = row < count ? parent->children[std::size_t(row)].name : QString();

    QStringList block;
    QStringList rest = moving;
    for (int source = 0; source < 100; ++source) {
        for (const QString &name : moving) {
            if (rowOf(*parentOf(root, name), name) == source) {
                block.append(name);
                rest.removeAll(name);
                break;
            }
        }
    }
    block += rest;

    const bool showed = parent->kind == 's'
                        && std::any_of(parent->children.begin(), parent->children.end(),
                                       [](const Plain &child) { return child.enabled; });
    bool shows = showed;
    std::vector<Plain> taken;
    for (const QString &name : qAsConst(block)) {
        Plain *from = parentOf(root, name);
        Plain node = from->children[std::size_t(rowOf(*from, name))];
        if (parent->kind == 's' && from != parent && node.enabled) {
            node.enabled = !shows;
            shows = true;
        }
        taken.push_back(node);
    }
    for (const QString &name : qAsConst(block)) {
        Plain *from = parentOf(root, name);
        from->children.erase(from->children.begin() + rowOf(*from, name));
    }
    parent = findPlain(root, target);
    const auto place = anchor.isEmpty() ? parent->children.end()
                                        : parent->children.begin() + rowOf(*parent, anchor);
    parent->children.insert(place, taken.begin(), taken.end());
}

/// A random tree whose names are unique.
void growRandomly(Plain &parent, std::mt19937 &random, int depth, int &count)
{
    const int children = int(random() % 5);
    bool shows = false;
    for (int i = 0; i < children; ++i) {
        Plain child{QString("n%1").arg(++count), "aags"[random() % 4], random() % 4 != 0, {}};
        if (parent.kind == 's') {
            child.enabled = child.enabled && !shows;
            shows = shows || child.enabled;
        }
        if (child.kind != 'a' && depth < 4)
            growRandomly(child, random, depth + 1, count);
        parent.children.push_back(child);
    }
}

} // namespace

class tst_MoveRule : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMove_data();
    void shouldMove();
    void shouldMoveLikeTheNaiveRule_data();
    void shouldMoveLikeTheNaiveRule();
};

void tst_MoveRule::shouldMove_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("nodes");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("moved");
    QTest::addColumn<QString>("enabled");
    const auto row = [](const char *rule, const char *before, const char *nodes, const char *parent,
                        int at, const char *after, const char *moved, const char *enabled) {
        QTest::newRow(rule) << before << nodes << parent << at << after << moved << enabled;
    };
    row("onto a group", "a g(b)", "a", "g", -1, "g(b a)", "a / g / b", "a");
    row("up", "a b c", "c", "root", 0, "c a b", "c / root / 0", "c");
    row("down: the row counts before removal", "a b c d", "a", "root", 3, "b c a d", "a / root / c",
        "a");
    row("just above itself", "a b c", "b", "root", 1, "a b c", "", "");
    row("just below itself", "a b c", "b", "root", 2, "a b c", "", "");
    row("to the end where it is", "a b c", "c", "root", -1, "a b c", "", "");
    row("list order does not count", "a b c d e", "e b d", "root", 0, "b d e a c",
        "b d e / root root root / 0 b d", "b d e");
    row("before the first that stays", "a b c d e", "b c e", "root", 1, "a b c e d",
        "b c e / root root root / a b c", "b c e");
    row("row beyond the end", "a b g(c)", "a", "g", 7, "b g(c a)", "a / g / c", "a");
    row("several parents, different rows", "a g(b c) h(d e f)", "f c a", "g", 0,
        "g(a c f b) h(d e)", "a c f / g g g / 0 a c", "a c f");
    row("several parents, equal rows", "g(a b) h(c d) i()", "c b a d", "i", -1,
        "g() h() i(c b a d)", "c b a d / i i i i / 0 c b a", "c b a d");
    row("a group with its child", "g(a) b h()", "a g", "h", -1, "b h(g(a))", "g / h / 0", "g");
    row("into itself", "g(a) b", "g b", "g", 0, "g(b a)", "b / g / 0", "b");
    row("into what it holds", "g(h(a)) b", "g", "h", -1, "g(h(a)) b", "", "");
    row("a listed child of what cannot move stays", "g(a h()) b", "g a b", "h", -1, "g(a h(b))",
        "b / h / 0", "b");
    row("skips what it cannot", "a b", "? 0 root b b", "root", 0, "b a", "b / root / 0", "b");
    row("into an overlay", "a b", "a", "b", -1, "a b", "", "");
    row("under an unknown parent", "a b", "a", "?", -1, "a b", "", "");
    row("under no parent", "a b", "a", "0", -1, "a b", "", "");
    row("into a disabled group", "a g-(h(b))", "a", "h", -1, "g-(h(b a))", "a / h / b", "g");
    row("out of a disabled group", "g-(a)", "a", "root", 0, "a g-()", "a / root / 0", "a");
    row("a disabled node", "a- g()", "a", "g", -1, "g(a-)", "a / g / 0", "a");
    row("into a switch that shows one", "a s{b c-}", "a", "s", 0, "s{a- b c-}", "a / s / 0", "a");
    row("into a switch that shows none", "a b s{c-}", "a b", "s", 1, "s{c- a b-}",
        "a b / s s / c a", "a b");
    row("within a switch", "s{a b- c-}", "a", "s", 3, "s{b- c- a}", "a / s / c", "a");
    row("the shown one and another one", "a s{b- c}", "a c", "s", 0, "s{a- c b-}",
        "a c / s s / 0 a", "a c");
    row("out of a switch", "s{a b-}", "a", "root", -1, "s{b-} a", "a / root / s", "a");
    row("into a disabled switch", "a s-{b}", "a", "s", -1, "s-{b a-}", "a / s / b", "s a");
}

void tst_MoveRule::shouldMove()
{
    QFETCH(QString, before);
    QFETCH(QString, nodes);
    QFETCH(QString, parent);
    QFETCH(int, row);
    QFETCH(QString, after);
    QFETCH(QString, moved);
    QFETCH(QString, enabled);
    open(before);
    service().moveNodes(ids(nodes), id(parent), row);
    QCOMPARE(dump(), after);
    const QStringList expected{"nodesMoved " + moved, "enabledStateChanged " + enabled};
    QCOMPARE(signalLines(), moved.isEmpty() ? QStringList() : expected);
}

void tst_MoveRule::shouldMoveLikeTheNaiveRule_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 40; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_MoveRule::shouldMoveLikeTheNaiveRule()
{
    QFETCH(unsigned, seed);
    std::mt19937 random(seed);
    Plain root{"root", 'g', true, {}};
    int count = 0;
    growRandomly(root, random, 0, count);
    open(textOf(root));
    QCOMPARE(dump(), textOf(root));
    for (int step = 0; step < 100; ++step) {
        QStringList names;
        const int length = int(random() % 6);
        for (int i = 0; i < length; ++i) {
            const int pick = int(random() % unsigned(count + 2));
            names.append(pick == 0 ? QString("root") : QString("n%1").arg(pick));
        }
        const int pick = int(random() % unsigned(count + 1));
        const QString target = pick == 0 ? QString("root") : QString("n%1").arg(pick);
        const int row = int(random() % 7) - 1;
        const QString before = textOf(root);
        moveNaively(root, names, target, row);
        service().moveNodes(ids(names.join(' ')), id(target), row);
        const QString what = QString("step %1: %2 to %3 at %4 in %5")
                                 .arg(step)
                                 .arg(names.join(' '), target)
                                 .arg(row)
                                 .arg(before);
        QVERIFY2(dump() == textOf(root), qPrintable(what + "\n" + dump() + "\n" + textOf(root)));
        const QStringList lines = signalLines();
        QVERIFY2(lines.isEmpty() == (before == dump()), qPrintable(what));
    }
}

KX_TEST_MAIN(tst_MoveRule)
#include "tst_MoveRule.moc"
