// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/SelectionShape.h"

#include "tests/viewer/scene/ServiceTest.h"

using namespace viewer;

/// "a g(b h(c d-)) s{e f-} k-(l)", with a box of 10 by 10 pixels for each overlay that is active, at
/// ten times its place in the alphabet.
class tst_SelectionShape : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void shouldMeanTheOverlaysOfGroups_data();
    void shouldMeanTheOverlaysOfGroups();
    void shouldOutline_data();
    void shouldOutline();

private:
    QStringList names(const QRPC::NodeList &nodes);
    QString text(const QVector<QRectF> &boxes) const;

    std::vector<DrawnOverlay> m_drawn;
};

void tst_SelectionShape::init()
{
    ServiceTest::init();
    open("a g(b h(c d-)) s{e f-} k-(l)");
    m_drawn.clear();
    for (const char *name : {"a", "b", "c", "e"}) {
        const double at = 10 * (*name - 'a');
        m_drawn.push_back({id(name), {at + 3, at + 3, 4, 4}, {at, at, 10, 10}});
    }
}

QStringList tst_SelectionShape::names(const QRPC::NodeList &nodes)
{
    QStringList list;
    for (const QRPC::NodeId node : nodes)
        list.append(service().getName(node));
    return list;
}

/// Boxes as the names of the overlays at their corners, in the order of the alphabet.
QString tst_SelectionShape::text(const QVector<QRectF> &boxes) const
{
    QStringList list;
    for (const QRectF &box : boxes) {
        const QChar first(char('a' + int(box.left()) / 10));
        const QChar last(char('a' + int(box.right()) / 10 - 1));
        list.append(first == last ? QString(first) : QString(first) + last);
    }
    list.sort();
    return list.join(' ');
}

void tst_SelectionShape::shouldMeanTheOverlaysOfGroups_data()
{
    QTest::addColumn<QString>("nodes");
    QTest::addColumn<QStringList>("overlays");
    QTest::newRow("overlays in the order of the tree") << "e a" << QStringList{"a", "e"};
    QTest::newRow("all of a group, shown or not") << "g" << QStringList{"b", "c", "d"};
    QTest::newRow("all of a switch") << "s" << QStringList{"e", "f"};
    QTest::newRow("each once") << "c h g b a a" << QStringList{"a", "b", "c", "d"};
    QTest::newRow("hidden") << "k" << QStringList{"l"};
    QTest::newRow("unknown") << "? 0" << QStringList();
}

void tst_SelectionShape::shouldMeanTheOverlaysOfGroups()
{
    QFETCH(QString, nodes);
    QTEST(names(overlaysOf(scene(), ids(nodes))), "overlays");
}

void tst_SelectionShape::shouldOutline_data()
{
    QTest::addColumn<QString>("nodes");
    QTest::addColumn<QString>("overlays");
    QTest::addColumn<QString>("members");
    QTest::addColumn<QString>("groups");
    const auto row = [](const char *nodes, const char *overlays, const char *members,
                        const char *groups) {
        QTest::newRow(nodes) << nodes << overlays << members << groups;
    };
    row("a", "a", "", "");
    row("a e", "a e", "", "");
    row("g", "", "b c", "bc");
    row("h", "", "c", "c");
    row("g h", "", "b c", "bc c");
    row("g c", "c", "b", "bc");
    row("c b", "b c", "", "");
    row("s", "", "e", "e");
    row("f l d", "", "", "");
    row("k", "", "", "");
    row("", "", "", "");
}

void tst_SelectionShape::shouldOutline()
{
    QFETCH(QString, nodes);
    const Outlines outlines = outlinesOf(scene(), ids(nodes), m_drawn);
    QTEST(text(outlines.overlays), "overlays");
    QTEST(text(outlines.members), "members");
    QTEST(text(outlines.groups), "groups");
}

KX_TEST_MAIN(tst_SelectionShape)
#include "tst_SelectionShape.moc"
