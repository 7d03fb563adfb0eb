// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/GuideWindow.h"

#include "viewer/app/Scaled.h"
#include "viewer/app/UserGuide.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QListWidget>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace viewer {

namespace {

constexpr QSize UsualSize(900, 640);
constexpr int ContentsWidth = 210;
constexpr int Margin = 16;

QString readFile(const QString &path)
{
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll())
               : GuideWindow::tr("The user guide was not installed with the viewer.");
}

} // namespace

GuideWindow::GuideWindow(const QString &file, QWidget *parent)
    : QDialog(parent)
    , m_guide(new UserGuide(readFile(file), QFileInfo(file).absolutePath(), this))
    , m_contents(new QListWidget(this))
    , m_text(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("guideWindow"));
    setWindowTitle(tr("User Guide"));
    m_contents->setObjectName(QStringLiteral("guideContents"));
    m_contents->setAccessibleName(tr("Contents"));
    m_text->setObjectName(QStringLiteral("guideText"));
    m_text->setAccessibleName(tr("User Guide"));
    m_text->setOpenLinks(false);
    m_guide->setDocumentMargin(scaled(Margin, this));
    m_text->setDocument(m_guide);
    fillContents();
    auto *panes = new QSplitter(this);
    panes->addWidget(m_contents);
    panes->addWidget(m_text);
    panes->setStretchFactor(1, 1);
    const int width = scaled(ContentsWidth, this);
    panes->setSizes({width, scaled(UsualSize.width(), this) - width});
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(panes);
    connect(m_contents, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            m_text->scrollToAnchor(m_guide->headings().at(row).anchors.first());
    });
    connect(m_text, &QTextBrowser::anchorClicked, this, &GuideWindow::follow);
    const QSize usual(scaled(UsualSize.width(), this), scaled(UsualSize.height(), this));
    resize(parent ? usual.boundedTo(parent->window()->size()) : usual);
}

void GuideWindow::goTo(const QString &anchor)
{
    const QVector<UserGuide::Heading> &headings = m_guide->headings();
    int row = 0;
    for (int i = 0; i < headings.size(); ++i) {
        if (headings.at(i).anchors.contains(anchor))
            row = i;
    }
    // The row may be the current one already, while the text was scrolled elsewhere.
    m_contents->setCurrentRow(-1);
    m_contents->setCurrentRow(row);
    if (row == 0)
        m_text->verticalScrollBar()->setValue(0);
}

void GuideWindow::fillContents()
{
    const QString indent(3, QLatin1Char(' '));
    for (const UserGuide::Heading &heading : m_guide->headings())
        m_contents->addItem(indent.repeated(qMax(0, heading.level - 2)) + heading.text);
}

/// Links lead to headings of the guide; other documents and pages are opened by the desktop.
void GuideWindow::follow(const QUrl &link)
{
    const QUrl target = m_guide->baseUrl().resolved(link);
    if (link.path().isEmpty() && link.hasFragment())
        goTo(link.fragment());
    else
        QDesktopServices::openUrl(target);
}

} // namespace viewer
