// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/RandomScene.h"
#include "tests/overlayeditor/EditorTest.h"

#include <memory>

/// Base of the tests that do what a user does in the editor's window, and what others do beside it, in
/// random order: selections, commands, edits, filters, drops. The class says which service is mirrored,
/// which steps there are and what is wrong after one.
class RandomEditorTest : public EditorTest
{
    Q_OBJECT

protected:
    /// Makes 70 random steps in the editor, which is open. After each there is no fault; the seed is
    /// printed with the steps that led to one.
    void run(quint32 seed);

    quint32 random(int below) { return quint32(m_scene->below(below)); }
    QRPC::NodeId anyNode() { return m_scene->anyNode(); }
    QRPC::NodeId anyContainer() { return m_scene->anyContainer(); }
    QRPC::NodeList anyNodes() { return m_scene->anyNodes(); }

    /// The steps; each tells what it did.
    QString selectSome();
    QString command();
    QString edit();
    QString filter();
    QString changeOutside() { return m_scene->changeService(); }
    QString dropOwn();

    virtual kxOverlayService &mirrored() = 0;

    /// All but the root.
    virtual QRPC::NodeList allNodes() = 0;

    /// Makes one of the steps.
    virtual QString step() = 0;

    /// What is wrong after a step; empty for nothing.
    virtual QString fault() = 0;

private:
    std::unique_ptr<RandomScene> m_scene; // while it runs
};
