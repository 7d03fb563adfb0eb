// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT
//
// Any bytes as a scene file. Either there is a message that names the file, or a scene whose text
// reads as the same scene.

#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"

using viewer::SceneReader;
using viewer::SceneReading;
using viewer::SceneWriter;

namespace {

void demand(bool isTrue, const char *what)
{
    if (!isTrue)
        qFatal("%s", what);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = QStringLiteral("/scenes/a.json");
    const QByteArray file(reinterpret_cast<const char *>(data), int(size));
    const SceneReading reading = SceneReader::parse(file, path);
    demand(reading.scene.has_value() == reading.error.isEmpty(), "a scene or a message");
    if (!reading.scene) {
        demand(reading.error.startsWith(path + QLatin1String(": ")), "a message names the file");
        return 0;
    }
    const QByteArray written = SceneWriter::content(*reading.scene, path, nullptr);
    const SceneReading again = SceneReader::parse(written, path);
    demand(again.scene.has_value(), "what is written can be read");
    demand(SceneWriter::content(*again.scene, path, nullptr) == written, "and is the same");
    return 0;
}
