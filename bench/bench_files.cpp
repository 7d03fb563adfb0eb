// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// Opening and saving a scene, beside what nobody can leave out: the JSON library alone parsing the
// same text (writing the same values), and for the opening the filling of the tree.

#include "bench/Sides.h"
#include "bench/TreeCase.h"
#include "overlayeditor/model/kxOverlayQtModel.h"
#include "viewer/scene/JsonRecord.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"

namespace {

/// The file that the scenes would lie in; no byte of it is read or written.
QString path()
{
    return QStringLiteral("/scenes/a.json");
}

QByteArray fileOf(const viewer::OverlayService &service)
{
    return viewer::SceneWriter::content(service.scene(), path(), nullptr);
}

/// A scene, its text, and the tree of the editor with its view.
struct FileCase
{
    FileCase(Shape shape, int size)
        : tree(shape, size)
        , text(fileOf(*tree.service()))
        , view(makeView(true, &model))
    {
        model.modelReset();
        QCoreApplication::processEvents();
    }

    TreeCase tree;
    QByteArray text;
    kxOverlayQtModel model;
    std::unique_ptr<QTreeView> view;
};

void open(FileCase *file)
{
    viewer::SceneReading reading = viewer::SceneReader::parse(file->text, path());
    file->tree.service()->setScene(std::move(*reading.scene));
}

viewer::Json parsed(const QByteArray &text)
{
    return viewer::Json::parse(text.cbegin(), text.cend());
}

void parseAndFill(FileCase *file)
{
    benchmark::DoNotOptimize(parsed(file->text));
    file->model.modelReset();
}

void save(FileCase *file)
{
    benchmark::DoNotOptimize(fileOf(*file->tree.service()));
}

using Work = void (*)(FileCase *file);

sides::Run measure(Shape shape, int size, Work work)
{
    return [=](benchmark::State &state) {
        FileCase file(shape, size);
        for ([[maybe_unused]] auto iteration : state)
            state.SetIterationTime(sides::secondsOf([&] { work(&file); }));
    };
}

sides::Run measureDump(Shape shape, int size)
{
    return [=](benchmark::State &state) {
        const viewer::Json document = parsed(fileOf(*TreeCase(shape, size).service()));
        for ([[maybe_unused]] auto iteration : state)
            state.SetIterationTime(
                sides::secondsOf([&] { benchmark::DoNotOptimize(document.dump(2)); }));
    };
}

} // namespace

void sides::addAll()
{
    for (const Shape shape : {Shape::Flat, Shape::Groups, Shape::Deep}) {
        for (const int size : {1000, 10000}) {
            sides::add("open", nameOf(shape), size, measure(shape, size, open),
                       measure(shape, size, parseAndFill));
            sides::add("save", nameOf(shape), size, measure(shape, size, save),
                       measureDump(shape, size));
        }
    }
}
