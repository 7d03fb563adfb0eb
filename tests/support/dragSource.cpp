// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// dragSource <x> <y> <moves|copies> [<format> <hex bytes>]...: another application for tests of
// drops. It shows a small window, from which a press of the mouse drags the given data, and tells on
// standard output how far it is: "ready", "dragging", then "moved", "copied" or "refused". It answers
// for its data until it is killed.

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <memory>

namespace {

void tell(const char *state)
{
    std::puts(state);
    std::fflush(stdout);
}

const char *nameOf(Qt::DropAction action)
{
    if (action == Qt::MoveAction)
        return "moved";
    return action == Qt::CopyAction ? "copied" : "refused";
}

class Source : public QWidget
{
    Q_OBJECT

public:
    explicit Source(const QStringList &arguments) : m_arguments(arguments)
    {
        // The test decides where it is, not the window manager.
        setWindowFlags(Qt::X11BypassWindowManagerHint);
        setGeometry(arguments.at(1).toInt(), arguments.at(2).toInt(), 60, 60);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        if (!m_isReady)
            tell("ready");
        m_isReady = true;
    }

    void mousePressEvent(QMouseEvent *) override
    {
        auto mimeData = std::make_unique<QMimeData>();
        for (int i = 4; i + 1 < m_arguments.size(); i += 2)
            mimeData->setData(m_arguments.at(i),
                              QByteArray::fromHex(m_arguments.at(i + 1).toLatin1()));
        auto *drag = new QDrag(this); // the toolkit deletes it once the data is not needed any more
        drag->setMimeData(mimeData.release());
        QTimer::singleShot(0, this, [] { tell("dragging"); });
        const bool moves = m_arguments.at(3) == "moves";
        tell(nameOf(drag->exec(moves ? Qt::MoveAction : Qt::CopyAction)));
    }

private:
    const QStringList m_arguments;
    bool m_isReady = false;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    Source source(app.arguments());
    source.show();
    return QApplication::exec();
}

#include "dragSource.moc"
