// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>

#include <vector>

/// What docs/settings.md says of the keys.
namespace ContractKeys {

enum class Kind { Text, NotEmpty, Whole, Amount };

struct Key
{
    const char *name;
    Kind kind = Kind::Text;
    double min = 0.0;
    double max = -1.0; ///< below the minimum: no numbers
    /// Words that are values, too, with bars between them.
    const char *words = "";
};

inline QStringList wordsOf(const Key &key)
{
    return *key.words ? QString::fromLatin1(key.words).split(QLatin1Char('|')) : QStringList();
}

const double MaxCode = 999999999.0;
const double MaxAmount = 10000000000.0;
const double MaxPort = 65535.0;
const char *const Speeds = "1200|2400|4800|9600|19200|38400|57600|115200";

inline const std::vector<Key> DocumentKeys = {
    {"Protocol", Kind::Whole, -1, MaxCode},
    {"PathAC"},
    {"Timeout", Kind::Whole, 0, 99},
    {"Slip"},
    {"Operators", Kind::Whole, 0, 100000},
    {"URL"},
    {"CheckTimeout", Kind::Whole, 0, 999},
    {"UseProxy", Kind::Whole, 0, -1, "true|false"},
    {"ProxyServer"},
    {"ProxyPort", Kind::Whole, 0, MaxPort},
    {"DealerCode", Kind::Whole, 0, MaxCode},
    {"PointCode", Kind::Whole, 0, MaxCode},
    {"OperatorCode", Kind::Whole, 0, MaxCode},
    {"KeyLoadPwd"},
    {"SerialKeyNumber", Kind::Whole, 0, MaxCode},
    {"OpcodeCloseDay", Kind::Whole, 1, 99},
    {"OpcodePrintJournal", Kind::Whole, 1, 99},
    {"ModemMode", Kind::Whole, 0, 1},
    {"TerminalID"},
    {"Port", Kind::Whole, 0, 99, "TCPIP|USB|TTY"},
    {"IPAddress"},
    {"IPPort", Kind::Whole, 0, MaxPort},
    {"Vid", Kind::Whole, 0, MaxPort},
    {"Pid", Kind::Whole, 0, MaxPort},
    {"TTYSuffix"},
    {"BaudRate", Kind::Whole, 0, -1, Speeds},
};

inline const std::vector<Key> SlipKeys = {
    {"Header"},
    {"Footer"},
    {"HideCard", Kind::Whole, 0, -1, "true"},
};

inline const std::vector<Key> OperatorKeys = {
    {"Code", Kind::NotEmpty},
    {"Name", Kind::NotEmpty},
    {"MinSum", Kind::Amount, 0, MaxAmount},
    {"MaxSum", Kind::Amount, 0, MaxAmount},
    {"ComissionType", Kind::Whole, 0, 1},
    {"ComissionAddition", Kind::Whole, 0, 2},
    {"Comission", Kind::Amount, 0, MaxAmount},
    {"Gateway"},
    {"Param1", Kind::Whole, 0, 4},
    {"Param2", Kind::Whole, 0, 4},
    {"Mask1"},
    {"Mask2"},
    {"SumWareCode"},
    {"ComissionWareCode"},
    {"AddReqSum"},
};

} // namespace ContractKeys
