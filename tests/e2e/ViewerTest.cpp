// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/e2e/ViewerTest.h"

#include "host/kxStyle.h"
#include "kit/widgets.h"
#include "tests/support/RealInput.h"

#include <QDir>
#include <QScreen>

using namespace viewer;

void ViewerTest::initTestCase()
{
    QApplication::setStyle(new kxStyle);
}

void ViewerTest::cleanup()
{
    m_session.reset();
    KxTest::cleanup();
}

bool ViewerTest::start(const QStringList &arguments)
{
    const CommandLine line(QStringList{"overlay-viewer", "--plugin", EDITOR_PLUGIN} + arguments);
    m_session = std::make_unique<ViewerSession>(line, nullptr);
    m_session->start();
    m_tree = m_session->window()->findChild<QTreeView *>();
    return m_tree && becomesActive(m_session->window());
}

QModelIndex ViewerTest::rowOf(const QString &name) const
{
    const QModelIndexList rows =
        m_tree->model()->match(m_tree->model()->index(0, 0), Qt::DisplayRole, name, 1,
                               Qt::MatchExactly | Qt::MatchRecursive);
    return rows.value(0);
}

QRPC::NodeId ViewerTest::nodeOf(const QString &name) const
{
    return rowOf(name).data(Qt::UserRole + 1).toUInt();
}

QStringList ViewerTest::topRows() const
{
    QStringList names;
    for (int row = 0; row < m_tree->model()->rowCount(); ++row)
        names.append(m_tree->model()->index(row, 0).data().toString());
    return names;
}

QStringList ViewerTest::selectedNames() const
{
    return widgets::selectedNames(*m_tree);
}

void ViewerTest::clickRow(const QModelIndex &row, const QStringList &heldKeys)
{
    realInput::click(*m_tree->viewport(), m_tree->visualRect(row).center(), heldKeys);
}

void ViewerTest::photograph(const QString &step)
{
    QDir folder(QStringLiteral(PICTURES "/") + metaObject()->className());
    if (++m_pictures == 1)
        folder.removeRecursively();
    QVERIFY(folder.mkpath("."));
    const QString file = QStringLiteral("%1-%2.png").arg(m_pictures, 2, 10, QChar('0')).arg(step);
    QCoreApplication::processEvents();
    QVERIFY(m_session->window()->screen()->grabWindow(0).save(folder.filePath(file)));
}
