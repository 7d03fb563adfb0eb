// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/overlayeditor/EditorTest.h"

#include <random>

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

    quint32 random(int below) { return m_random() % quint32(below); }

    /// 0 when there is no node.
    QRPC::NodeId anyNode();

    /// A group, a switch or the root.
    QRPC::NodeId anyContainer();

    /// Up to four, with repetitions.
    QRPC::NodeList anyNodes();

    /// The steps; each tells what it did.
    QString selectSome();
    QString command();
    QString edit();
    QString filter();
    QString changeOutside();
    QString dropOwn();

    virtual kxOverlayService &mirrored() = 0;

    /// All but the root.
    virtual QRPC::NodeList allNodes() = 0;

    /// Makes one of the steps.
    virtual QString step() = 0;

    /// What is wrong after a step; empty for nothing.
    virtual QString fault() = 0;

private:
    std::mt19937 m_random;
};
