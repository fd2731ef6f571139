// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/slipdialog.h"

#include "common/qnoxsettings.h"

#include <QTextCursor>

namespace {

const QString SlipKey = QString::fromWCharArray(L"Slip");
const QString HeaderKey = QString::fromWCharArray(L"Header");
const QString FooterKey = QString::fromWCharArray(L"Footer");
const QString HideCardKey = QString::fromWCharArray(L"HideCard");

/// Makes the edit show every text as the slip has it, centred, whatever is typed, pasted or deleted. A word that
/// is wider than the edit is not broken: breaking takes seconds for one of a million characters.
void centre(QTextEdit *edit)
{
    edit->setWordWrapMode(QTextOption::WordWrap);
    QTextOption option = edit->document()->defaultTextOption();
    option.setAlignment(Qt::AlignCenter);
    edit->document()->setDefaultTextOption(option);
}

/// Shows the text; its own paragraphs are centred, too, for whoever asks them.
void setCentred(QTextEdit *edit, const QString &text)
{
    edit->setPlainText(text);
    QTextBlockFormat centred;
    centred.setAlignment(Qt::AlignCenter);
    QTextCursor all(edit->document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(centred);
}

SettingField centredField(const QString &key, QTextEdit *edit)
{
    centre(edit);
    return {key, edit, SIGNAL(textChanged()), [=](const QVariant &stored) { setCentred(edit, stored.toString()); },
            [=] { return edit->toPlainText(); }};
}

} // namespace

SlipDialog::SlipDialog(QNoxSettings &document, QWidget *parent) : SettingsDialog(document, parent)
{
    ui.setupUi(this);
    setFields({
        centredField(HeaderKey, ui.teHeader),
        centredField(FooterKey, ui.teFooter),
        {HideCardKey, ui.checkHideCard},
    });
    SlipDialog::loadSettings();
}

void SlipDialog::loadSettings()
{
    loadFields(fields, QNoxSettings(settings.get(SlipKey).toString()));
    // The card's number is always masked: whatever is stored, the box is checked and stays so.
    ui.checkHideCard->setChecked(true);
    ui.checkHideCard->setEnabled(false);
}

void SlipDialog::saveSettings()
{
    // From the stored document, so that what else it holds is kept.
    QNoxSettings slip(settings.get(SlipKey).toString());
    saveFields(fields, slip);
    settings.set(SlipKey, slip.toXml(0));
}
