// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"

#include <QLineEdit>

namespace conformance {

namespace {

void search(ModuleBench &bench, const QString &text)
{
    qobject_cast<QLineEdit *>(&bench.searchBox())->setText(text);
}

/// The names of the rows that a search leaves visible, in the order of the tree.
QString visible(ModuleBench &bench, const QModelIndex &parent = QModelIndex())
{
    QStringList names;
    for (int row = 0; row < bench.model().rowCount(parent); ++row) {
        if (bench.tree().isRowHidden(row, parent))
            continue;
        const QModelIndex index = bench.model().index(row, 0, parent);
        names.append(index.data().toString());
        const QString below = visible(bench, index);
        if (!below.isEmpty())
            names.append(below);
    }
    return names.join(' ');
}

/// A tree with plain names, a search and what it leaves.
struct Case
{
    const char *name;
    const char *rule;
    const char *text;
    const char *left;
};

const Case s_cases[] = {
    {"part", "A plain word finds every name that contains it.", "ea", "Heading Search"},
    {"ancestors", "What is found keeps all that holds it visible.", "deep", "Outer Inner deep"},
    {"groupAlone", "A group that is found does not keep what lies in it.", "Inner", "Outer Inner"},
    {"case", "Case counts.", "heading", ""},
    {"star", "An asterisk stands for any run of characters.", "H*ng", "Heading"},
    {"questionMark", "A question mark stands for one character.", "S?arch", "Search"},
    {"set", "Square brackets stand for one of several characters.", "d[ae]ep", "Outer Inner deep"},
    {"nothing", "A text that nothing matches hides every row.", "zzz", ""},
    {"empty", "An empty text shows every row.", "", "Heading Outer Inner deep flat Search"},
    {"dot", "A full stop is no wildcard.", "H.ading", ""},
};

void openNamed(ModuleBench &bench)
{
    bench.service().build("a2 g3(h4(b5 c6)) d7");
    const char *const names[] = {"Heading", "Outer", "Inner", "deep", "flat", "Search"};
    for (int i = 0; i < 6; ++i)
        bench.node(QRPC::NodeId(i + 2)).name = names[i];
    Q_EMIT bench.service().modelReset();
    bench.tree().expandAll();
}

ModuleChecks caseChecks()
{
    ModuleChecks checks;
    for (const Case &wanted : s_cases) {
        checks.push_back({QStringLiteral("search.%1").arg(wanted.name), wanted.rule,
                          [wanted](ModuleBench &bench) {
                              openNamed(bench);
                              search(bench, "zzz");
                              search(bench, wanted.text);
                              expectEqual("visible rows", visible(bench), QString(wanted.left));
                          }});
    }
    return checks;
}

} // namespace

ModuleChecks searchChecks()
{
    return joined<ModuleBench>(
        {caseChecks(),
         ModuleChecks{
             {"search.keepsSelection", "A search leaves the selection alone, hidden rows included.",
              [](ModuleBench &bench) {
                  openNamed(bench);
                  bench.select({2, 5});
                  search(bench, "Search");
                  expectEqual("selection", bench.selected(), QRPC::NodeList({2, 5}));
                  search(bench, "");
                  expectEqual("selection afterwards", bench.selected(), QRPC::NodeList({2, 5}));
              }},
             {"search.asksNothing",
              "A search reads the tree and asks the service nothing but its root.",
              [](ModuleBench &bench) {
                  openNamed(bench);
                  QStringList calls = bench.callsOf([&bench] { search(bench, "e"); });
                  calls.removeAll("getRootNode");
                  expectEqual("calls", calls, QStringList());
              }},
             {"search.keepsExpansion", "A search opens and closes no row.",
              [](ModuleBench &bench) {
                  openNamed(bench);
                  bench.tree().collapse(bench.index(4));
                  search(bench, "deep");
                  expect("a closed row stays closed", !bench.tree().isExpanded(bench.index(4)));
                  expect("an open row stays open", bench.tree().isExpanded(bench.index(3)));
              }},
             {"search.leavesHiddenGroups", "Rows in a hidden group keep the state that they had.",
              [](ModuleBench &bench) {
                  bench.open("g2(a3)");
                  search(bench, "nothing");
                  expect("the group is hidden", bench.tree().isRowHidden(0, QModelIndex()));
                  expect("its child is not", !bench.tree().isRowHidden(0, bench.index(2)));
              }},
             {"search.keepsTree", "A search changes no row.",
              [](ModuleBench &bench) {
                  openNamed(bench);
                  search(bench, "Inner");
                  bench.expectTree();
              }},
         }});
}

} // namespace conformance
