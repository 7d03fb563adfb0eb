// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/fuzz/ScriptComposer.h"

#include "viewer/script/ScriptOperations.h"

#include <array>

namespace {

constexpr std::array<const char *, 12> Numbers = {
    "0", "1", "-1", "2.5", "0.1", "1e9", "1e-9", "-1e300", "NaN", "Infinity", "4294967295", "-0"};
constexpr std::array<const char *, 7> Texts = {
    R"("")",    R"("A\nB")",    R"("\u2028\u0000\ud800")", R"("\"';\\")",
    R"("Ä→😀")", R"("Text 99")", R"("x".repeat(1000))"};
constexpr std::array<const char *, 4> Colors = {R"("#ff0000")", R"("#80102030")", "null",
                                                R"("#00000000")"};
constexpr std::array<const char *, 2> Types = {R"("text")", R"("image")"};
constexpr std::array<const char *, 2> SizeTypes = {R"("absolute")", R"("relative")"};
constexpr std::array<const char *, 2> Truths = {"true", "false"};
/// What can be pasted, and what cannot.
constexpr std::array<const char *, 6> Scenes = {
    R"('{"format": "overlay-scene", "version": 1, "overlays": [{"kind": "overlay"}]}')",
    R"('{"format": "overlay-scene", "version": 1, "overlays": [{"kind": "group", "name": "Group 7",)"
    R"( "more": 1, "children": [{"kind": "overlay", "type": "image", "image": "c.png"}]}]}')",
    R"('{"format": "overlay-scene", "version": 1, "more": 1, "overlays": [{"kind": "switch",)"
    R"( "children": [{"kind": "overlay"}, {"kind": "overlay"}]}, {"kind": "overlay"}]}')",
    R"('{"format": "overlay-scene", "version": 1, "overlays": []}')",
    R"('{"format": "overlay-scene", "version": 1, "overl')",
    R"('words')"};
/// Values that hardly any operation asks for.
constexpr std::array<const char *, 18> Odd = {
    "undefined",
    "null",
    "-1",
    "2.5",
    "4294967295",
    R"("#12345")",
    "[]",
    "{}",
    "[[2]]",
    "Symbol()",
    "() => 2",
    "overlays",
    "{length: 4294967295}",
    "{valueOf() { overlays.deleteNodes([2]); return 2; }}",
    "{get x() { history.undo(); return 1; }, y: 1}",
    "{get x() { throw 5; }, y: 1}",
    "new Proxy([2, 3], {})",
    "new Proxy([2, 3], {get() { return overlays.createGroup(1); }})"};

} // namespace

QByteArray ScriptComposer::changed(const QByteArray &script)
{
    QByteArrayList lines = script.split('\n');
    const int at = below(lines.size() + 1);
    const int kind = at < lines.size() ? below(4) : 3;
    if (kind == 0)
        lines.removeAt(at);
    else if (kind == 1)
        lines[at] = line();
    else if (kind == 2)
        lines.move(at, below(lines.size()));
    else
        lines.insert(at, line());
    return lines.join('\n');
}

QByteArray ScriptComposer::line()
{
    switch (below(8)) {
    case 0:
        return "try { " + call() + "; } catch (e) { print(e); }";
    case 1: { // often enough to meet its own announcement, and yet it ends
        const QByteArray signal = anyOf(viewer::scriptSignals()).name;
        return "{ let k = 0; overlays." + signal + ".connect((...l) => { if (++k < 4) " + call()
               + "; }); }";
    }
    case 2:
        return "for (let i = 0; i < 3; ++i) " + call() + ";";
    default:
        return call() + ";";
    }
}

QByteArray ScriptComposer::call()
{
    const viewer::ScriptSignature &signature = anyOf(viewer::scriptOperations()).signature;
    QByteArrayList arguments;
    for (const viewer::ScriptParameter &parameter : signature.parameters)
        arguments += argument(parameter);
    return QByteArray(signature.object) + '.' + signature.name + '(' + arguments.join(", ") + ')';
}

QByteArray ScriptComposer::argument(const viewer::ScriptParameter &parameter)
{
    return below(20) == 0 ? QByteArray(anyOf(Odd)) : fitting(parameter.name);
}

QByteArray ScriptComposer::fitting(const QByteArray &parameter)
{
    if (parameter == "nodes")
        return nodes();
    if (parameter == "node" || parameter == "parent" || parameter == "child"
        || parameter == "newParent")
        return node();
    if (parameter == "type")
        return anyOf(Types);
    if (parameter == "sizeType")
        return anyOf(SizeTypes);
    if (parameter == "color")
        return anyOf(Colors);
    if (parameter == "enabled")
        return anyOf(Truths);
    if (parameter == "position" || parameter == "offset")
        return point();
    if (parameter == "scene")
        return anyOf(Scenes);
    if (parameter == "row")
        return QByteArray::number(below(6) - 1);
    if (parameter == "name" || parameter == "text" || parameter == "family" || parameter == "path")
        return anyOf(Texts);
    return parameter == "size" || parameter == "x" || parameter == "y" ? number() : node();
}

QByteArray ScriptComposer::node()
{
    return QByteArray::number(below(16));
}

QByteArray ScriptComposer::nodes()
{
    QByteArrayList ids;
    for (int count = below(5); count > 0; --count)
        ids += node();
    return '[' + ids.join(", ") + ']';
}

QByteArray ScriptComposer::number()
{
    return below(2) == 0 ? node() : QByteArray(anyOf(Numbers));
}

QByteArray ScriptComposer::point()
{
    return "{x: " + number() + ", y: " + number() + '}';
}
