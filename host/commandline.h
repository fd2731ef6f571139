// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include "testing/simulateddriver.h"

#include <QPair>

/// What the reference host is asked to do.
struct CommandLine
{
    /// Nothing but `problem` is to be looked at when that is not empty: it names what is wrong, for people.
    static CommandLine parse(const QStringList &arguments);
    /// Takes an application object, which knows the program's name.
    static QString help();

    QString problem;
    bool wantsHelp = false;
    bool wantsVersion = false;
    /// The settings' file; empty for the sample of this name.
    QString settings;
    QString sample;
    Operation operation;
    QList<QPair<QString, Failure>> failures;
    /// A function of the library to be called at once; empty for the window.
    QString function;
    /// Its result is wanted for machines.
    bool json = false;
    /// Where the journal and the pictures of the windows go; empty for none.
    QString journal;
    QString gallery;
    QString language;
    double fontScale = 1.0;
};

#endif
