// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/ScriptOperations.h"

#include <tuple>

namespace viewer {

namespace {

using S = kxOverlayService;
using Parameters = QVector<ScriptParameter>;

constexpr const char *OverlayTypes[] = {"text", "image", nullptr};
constexpr const char *SizeTypes[] = {"absolute", "relative", nullptr};

template<class... Arguments, std::size_t... Index>
std::tuple<std::decay_t<Arguments>...> argumentsOf([[maybe_unused]] ScriptCall &call,
                                                   std::index_sequence<Index...>)
{
    return {call.argument<std::decay_t<Arguments>>(int(Index))...}; // in this order
}

/// Carries out what `invoke(arguments...)` is for on the thread of the service.
template<class Result, class... Arguments, class Operation>
QJSValue carryOut(ScriptCall &call, const Operation &operation, const char *const *names)
{
    const auto arguments = argumentsOf<Arguments...>(call, std::index_sequence_for<Arguments...>());
    if constexpr (std::is_void_v<Result>) {
        call.invoke([&] { std::apply(operation, arguments); });
        return {};
    } else {
        Result result{};
        call.invoke([&] { result = std::apply(operation, arguments); });
        if constexpr (std::is_same_v<Result, int>) {
            if (names)
                return ScriptCall::named(result, names);
        }
        return call.toScript(result);
    }
}

/// An operation of the service.
template<class Result, class... Arguments>
ScriptOperation operation(const char *name, Result (S::*method)(Arguments...),
                          const Parameters &parameters = {}, const char *const *names = nullptr)
{
    const auto run = [method, names](ScriptCall &call) {
        S *service = call.service();
        return carryOut<Result, Arguments...>(
            call,
            [service, method](const auto &...arguments) {
                return (service->*method)(arguments...);
            },
            names);
    };
    return {{"overlays", name, parameters}, run};
}

/// Something that is done with the steps of the script.
template<class Result, class... Arguments>
ScriptOperation step(const char *name, Result (ScriptSteps::*method)(Arguments...),
                     const Parameters &parameters = {})
{
    const auto run = [method](ScriptCall &call) {
        ScriptSteps *steps = call.steps();
        return carryOut<Result, Arguments...>(
            call,
            [steps, method](const auto &...arguments) { return (steps->*method)(arguments...); },
            nullptr);
    };
    return {{"history", name, parameters}, run};
}

/// A write of one value to many nodes.
template<class Argument>
ScriptOperation write(const char *name, void (S::*method)(const QRPC::NodeList &, Argument),
                      const char *value, const char *const *names = nullptr)
{
    return operation(name, method, {{"nodes"}, {value, names}});
}

/// A question about one node.
template<class Result>
ScriptOperation question(const char *name, Result (S::*method)(QRPC::NodeId),
                         const char *const *names = nullptr)
{
    return operation(name, method, {{"node"}}, names);
}

ScriptOperation command(const char *name, void (S::*method)(const QRPC::NodeList &))
{
    return operation(name, method, {{"nodes"}});
}

ScriptOperation creation(const char *name, QRPC::NodeId (S::*method)(QRPC::NodeId))
{
    return operation(name, method, {{"parent"}});
}

template<class... Lists>
ScriptSignal signal(const char *name, void (S::*member)(Lists...))
{
    const auto connect = [member](S *service, const QObject *context,
                                  const ScriptSignal::Receive &receive) {
        return QObject::connect(
            service, member, context,
            [receive](Lists... lists) { receive(QVector<QRPC::NodeList>{lists...}); },
            Qt::DirectConnection);
    };
    return {name, connect};
}

} // namespace

const std::vector<ScriptOperation> &scriptOperations()
{
    static const std::vector<ScriptOperation> table = {
        operation("getRootNode", &S::getRootNode),
        question("getParent", &S::getParent),
        question("getChildCount", &S::getChildCount),
        operation("getChild", &S::getChild, {{"node"}, {"index"}}),
        operation("getChildIndex", &S::getChildIndex, {{"parent"}, {"child"}}),
        question("isOverlay", &S::isOverlay),
        question("isSwitch", &S::isSwitch),
        question("getName", &S::getName),
        question("isEnabled", &S::isEnabled),
        question("isActive", &S::isActive),
        question("getOverlayType", &S::getOverlayType, OverlayTypes),
        question("getText", &S::getText),
        question("getFont", &S::getFont),
        question("getFontColor", &S::getFontColor),
        question("getBackgroundColor", &S::getBackgroundColor),
        question("getBackgroundTransparency", &S::getBackgroundTransparency),
        question("getImage", &S::getImage),
        question("getSizeType", &S::getSizeType, SizeTypes),
        question("getSize", &S::getSize),
        question("getPosition", &S::getPosition),
        question("getOffset", &S::getOffset),
        creation("createOverlay", &S::createOverlay),
        creation("createGroup", &S::createGroup),
        creation("createSwitch", &S::createSwitch),
        command("duplicateNodes", &S::duplicateNodes),
        command("deleteNodes", &S::deleteNodes),
        command("groupNodes", &S::groupNodes),
        operation("moveNodes", &S::moveNodes, {{"nodes"}, {"newParent"}, {"row"}}),
        write("setOverlayType", &S::setOverlayType, "type", OverlayTypes),
        write("setName", &S::setName, "name"),
        write("setEnabled", &S::setEnabled, "enabled"),
        write("setText", &S::setText, "text"),
        write("setFont", &S::setFont, "family"),
        write("setFontColor", &S::setFontColor, "color"),
        write("setBackgroundColor", &S::setBackgroundColor, "color"),
        write("setBackgroundTransparency", &S::setBackgroundTransparency, "color"),
        write("setImage", &S::setImage, "path"),
        write("setSizeType", &S::setSizeType, "sizeType", SizeTypes),
        write("setSize", &S::setSize, "size"),
        write("setPosition", &S::setPosition, "position"),
        write("setOffset", &S::setOffset, "offset"),
        write("setOffsetX", &S::setOffsetX, "x"),
        write("setOffsetY", &S::setOffsetY, "y"),
        step("undo", &ScriptSteps::undo),
        step("redo", &ScriptSteps::redo),
        step("begin", &ScriptSteps::begin),
        step("end", &ScriptSteps::end),
        step("cancel", &ScriptSteps::cancel),
        step("join", &ScriptSteps::join),
        step("paste", &ScriptSteps::paste, {{"scene"}, {"parent"}, {"row"}}),
        step("recordedAt", &ScriptSteps::recordedAt, {{"next"}}),
    };
    return table;
}

const std::vector<ScriptSignal> &scriptSignals()
{
    static const std::vector<ScriptSignal> table = {
        signal("nodesCreated", &S::nodesCreated),
        signal("nodesAdded", &S::nodesAdded),
        signal("nodesRemoved", &S::nodesRemoved),
        signal("nodesMoved", &S::nodesMoved),
        signal("overlayTypeChanged", &S::overlayTypeChanged),
        signal("nameChanged", &S::nameChanged),
        signal("textChanged", &S::textChanged),
        signal("fontChanged", &S::fontChanged),
        signal("fontColorChanged", &S::fontColorChanged),
        signal("backgroundColorChanged", &S::backgroundColorChanged),
        signal("backgroundTransparencyChanged", &S::backgroundTransparencyChanged),
        signal("imageChanged", &S::imageChanged),
        signal("sizeTypeChanged", &S::sizeTypeChanged),
        signal("sizeChanged", &S::sizeChanged),
        signal("positionChanged", &S::positionChanged),
        signal("offsetChanged", &S::offsetChanged),
        signal("enabledStateChanged", &S::enabledStateChanged),
        signal("modelReset", &S::modelReset),
    };
    return table;
}

} // namespace viewer
