// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "testing/contract/contractsession.h"

#include <vector>

/// A rule of the driver contract.
struct ContractRule
{
    const char *name;
    const char *place;    ///< section of the guides
    const char *expected; ///< the sentence that stands there
    bool writes;          ///< changes settings or the operator chosen, and puts the settings back
    void (*probe)(ContractSession &session);

    ContractFinding finding(Severity severity, const QString &seen) const;
};

const std::vector<ContractRule> &contractRules();
const ContractRule &contractRule(const QString &name);

// What one text shows.
void judgeSettings(const QString &xml, const ContractReport &report);
void judgeProtocols(const QString &choices, const ContractReport &report);

// The calls that try the driver out.
void probeTexts(ContractSession &session);
void probeSettingNames(ContractSession &session);
void probeNumbers(ContractSession &session);
void probeSettings(ContractSession &session);
void probeProperties(ContractSession &session);
void probeOperators(ContractSession &session);
void probeReadBack(ContractSession &session);
void probeVersions(ContractSession &session);
void probeAgain(ContractSession &session);
void probeRefused(ContractSession &session);
void probePutBack(ContractSession &session);
void probeMemory(ContractSession &session);
void probeTimes(ContractSession &session);
