// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXToolBar.h"
#include "tests/support/KxTest.h"

#include <QProxyStyle>

/// A style whose small icons have a size of their own.
class IconStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return metric == PM_SmallIconSize ? 29 : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

class tst_QKXToolBar : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeItsTitleAndShowTextBesideIcons();
    void shouldFollowTheIconSizeOfTheStyle();
    void shouldKeepAnIconSizeThatWasSet();
};

void tst_QKXToolBar::shouldTakeItsTitleAndShowTextBesideIcons()
{
    const QKXToolBar bar(QStringLiteral("Quick actions"));
    QCOMPARE(bar.windowTitle(), QStringLiteral("Quick actions"));
    QCOMPARE(bar.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
}

void tst_QKXToolBar::shouldFollowTheIconSizeOfTheStyle()
{
    IconStyle style;
    QKXToolBar bar(QString{});
    bar.setStyle(&style);
    QCOMPARE(bar.iconSize(), QSize(29, 29));
}

void tst_QKXToolBar::shouldKeepAnIconSizeThatWasSet()
{
    IconStyle style;
    QKXToolBar bar(QString{});
    bar.setIconSize(QSize(40, 40));
    bar.setStyle(&style);
    QCOMPARE(bar.iconSize(), QSize(40, 40));
}

KX_TEST_MAIN(tst_QKXToolBar)
#include "tst_QKXToolBar.moc"
