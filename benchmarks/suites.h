// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef SUITES_H
#define SUITES_H

#include "table.h"

#include <string>

/// What is measured, `seconds` for each figure.
void measureStart(Table &table, double seconds);
void measureWindows(Table &table, double seconds);
void measureOperators(Table &table, double seconds);
void measureDocument(Table &table, double seconds);
void countCalls(Table &table);

/// Records of so many service operators, each a document as text.
std::vector<QString> operatorRecords(int count);
/// The settings of a shop with so many operators, for this protocol.
std::wstring shopSettings(const QString &protocol, int operators);

#endif
