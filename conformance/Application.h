// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxStyle.h"

#include <QApplication>

namespace conformance {

/// The application object of a process that runs checks, in the host's style and without arguments
/// of the user. Member of a bench, before all that needs it.
class Application
{
public:
    Application() { QApplication::setStyle(new kxStyle); }
    Q_DISABLE_COPY(Application)

private:
    int m_count = 1;
    char m_name[12] = "conformance";
    char *m_arguments[2] = {m_name, nullptr};
    QApplication m_application{m_count, m_arguments};
};

} // namespace conformance
