// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/protocols.h"

#include "dialogs/arcus2settingsdialog.h"
#include "dialogs/cyberplatsettingsdialog.h"
#include "dialogs/lumipaysettingsdialog.h"
#include "dialogs/ormasettingsdialog.h"
#include "window/scopeddialog.h"

#include <iterator>

const Protocol &protocol(int number)
{
    static const Protocol unknown = {false, false, false, false, nullptr, Protocol::WithoutData};
    static const Protocol protocols[] = {
        // directory, time-out, slip, operators, parameters, question
        /* 0 */ {true, true, true, false, nullptr, Protocol::CardPaymentOrUndone},
        /* 1 */ unknown,
        /* 2 */ {true, true, true, true, runOn<CyberPlatSettingsDialog>, Protocol::ServicePayment},
        /* 3 */ unknown,
        /* 4 */ {true, false, true, false, nullptr, Protocol::CardPayment},
        /* 5 */ unknown,
        /* 6 */ {true, true, true, false, runOn<Arcus2SettingsDialog>, Protocol::CardPaymentOrRefund},
        /* 7 */ {true, true, true, false, nullptr, Protocol::CardPaymentOrUndone},
        /* 8 */ {true, false, true, false, runOn<InpasLumiPaySettingsDialog>, Protocol::CardPaymentOrUndone},
        /* 9 */ {true, false, true, false, runOn<Arcus2LumiPaySettingsDialog>, Protocol::CardPaymentOrRefund},
        /* 10 */ {true, false, true, false, runOn<SberbankLumiPaySettingsDialog>, Protocol::CardPayment},
        /* 11 */ {true, false, true, false, runOn<SberbankOrmaSettingsDialog>, Protocol::CardPayment},
        /* 12 */ {true, false, true, false, runOn<InpasOrmaSettingsDialog>, Protocol::CardPaymentOrUndone},
        /* 13 */ {true, false, true, false, runOn<Arcus2OrmaSettingsDialog>, Protocol::CardPaymentOrRefund},
    };
    return number >= 0 && number < static_cast<int>(std::size(protocols)) ? protocols[number] : unknown;
}
