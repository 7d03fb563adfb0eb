// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxMainWindowService.h"
#include "host/kxOverlayService.h"
#include "host/kxPlatformService.h"
#include "tests/support/KxTest.h"

#include <QMetaMethod>

#include <cstring>

namespace {

/// The place of a virtual operation in the table of its class: under the C++ ABI of this platform a
/// pointer to it holds the offset plus one.
template<class Operation>
quintptr placeOf(Operation operation)
{
    quintptr place = 0;
    std::memcpy(&place, &operation, sizeof place);
    return place;
}

/// True when the operations follow one another without a gap: modules that were built against the
/// interface call them by their places.
template<class... Operations>
bool areInOrder(Operations... operations)
{
    const quintptr places[] = {placeOf(operations)...};
    for (size_t i = 1; i < std::size(places); ++i) {
        if (places[i] != places[i - 1] + sizeof(void *))
            return false;
    }
    return true;
}

} // namespace

/// The shape of the services that modules are compiled against.
class tst_hostInterfaces : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepTheOrderOfOverlayOperations();
    void shouldKeepTheOrderOfOtherOperations();
    void shouldSpellNodeTypesInFull();
};

void tst_hostInterfaces::shouldKeepTheOrderOfOverlayOperations()
{
    using Service = kxOverlayService;
    QVERIFY(areInOrder(
        &Service::getRootNode, &Service::getParent, &Service::getChildCount, &Service::getChild,
        &Service::getChildIndex, &Service::isOverlay, &Service::isSwitch, &Service::getName,
        &Service::isEnabled, &Service::isActive, &Service::getOverlayType, &Service::getText,
        &Service::getFont, &Service::getFontColor, &Service::getBackgroundColor,
        &Service::getBackgroundTransparency, &Service::getImage, &Service::getSizeType,
        &Service::getSize, &Service::getPosition, &Service::getOffset, &Service::createOverlay,
        &Service::createGroup, &Service::createSwitch, &Service::duplicateNodes,
        &Service::deleteNodes, &Service::groupNodes, &Service::moveNodes, &Service::setOverlayType,
        &Service::setName, &Service::setEnabled, &Service::setText, &Service::setFont,
        &Service::setFontColor, &Service::setBackgroundColor, &Service::setBackgroundTransparency,
        &Service::setImage, &Service::setSizeType, &Service::setSize, &Service::setPosition,
        &Service::setOffset, &Service::setOffsetX, &Service::setOffsetY));
}

void tst_hostInterfaces::shouldKeepTheOrderOfOtherOperations()
{
    QVERIFY(areInOrder(&kxMainWindowService::getMainWindow, &kxMainWindowService::registerModule));
    QVERIFY(areInOrder(&kxPlatformService::getScaleFactorX, &kxPlatformService::getScaleFactorY,
                       &kxPlatformService::getIconWidth, &kxPlatformService::getIconHeight));
}

void tst_hostInterfaces::shouldSpellNodeTypesInFull()
{
    const QMetaObject &meta = kxOverlayService::staticMetaObject;
    QByteArrayList lists;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Signal);
        const QByteArray name = meta.method(i).name();
        const QByteArray signature = meta.method(i).methodSignature();
        if (name == "nodesMoved")
            QCOMPARE(signature,
                     QByteArray("nodesMoved(QRPC::NodeList,QRPC::NodeList,QRPC::NodeList)"));
        else if (name == "modelReset")
            QCOMPARE(signature, QByteArray("modelReset()"));
        else
            QCOMPARE(signature, name + "(QRPC::NodeList)");
        lists.append(name);
    }
    QCOMPARE(lists.size(), 18);
    QVERIFY(lists.contains("nodesCreated") && lists.contains("enabledStateChanged"));
}

KX_TEST_MAIN(tst_hostInterfaces)
#include "tst_hostInterfaces.moc"
