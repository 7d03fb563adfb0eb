// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QTimer>
#include <QWidget>

class QLabel;
class QToolButton;

namespace viewer {

/// How urgent a notice is; decides its colour and mark.
enum class Severity { Info, Warning, Error };

/// One message to the user with a button that dismisses it. Its text can be selected and copied.
/// Owned by the notice area.
class Notice : public QWidget
{
    Q_OBJECT

public:
    Notice(Severity severity, const QString &text, QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    Severity severity() const { return m_severity; }

    int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The user has read it.
    void dismissed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int textWidth(int width) const;

    const Severity m_severity;
    QLabel *m_label;
    QToolButton *m_button;
    QTimer m_reading{this}; // of a message that asks for nothing
};

/// The stack of messages that floats over the top of the view. Nothing in it blocks the user: each
/// message stays until it is dismissed, is true no more, or is pushed out by newer ones; one of no
/// urgency goes by itself once it was there long enough to be read. Owned by the view area.
class NoticeArea : public QWidget
{
    Q_OBJECT

public:
    explicit NoticeArea(QWidget *parent = nullptr);

    /// Shows a message at the top. A text that stands there already is not shown twice.
    void add(Severity severity, const QString &text);

    /// Takes the message with this text away, where there is one.
    void remove(const QString &text);

    /// Has the message with this text, where there is one, say something else.
    void replace(const QString &text, const QString &other);

    /// Takes the newest message away. False when there is none.
    bool dismissNewest();

    /// Takes all messages away.
    void clear();

    /// The texts that stand there, newest first.
    QStringList texts() const;

    /// Fits the area to the top of its parent, as wide as the parent allows.
    void place();

Q_SIGNALS:
    /// A text was taken away, with its message or for another one.
    void dismissed(const QString &text);

private:
    void dismiss(Notice *notice);

    QList<Notice *> m_notices; // newest first
};

} // namespace viewer
