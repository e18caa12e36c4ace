// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkForm.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

static const QString typeName = QStringLiteral("m_appTypeChoice");

QWidget* LinkForm::dialog()
{
    QWidget* const modal = QApplication::activeModalWidget();
    return modal && modal->findChild<QComboBox*>(typeName) ? modal : nullptr;
}

LinkForm LinkForm::of(const QWidget* dialog)
{
    LinkForm form;
    const QComboBox* const type = dialog ? dialog->findChild<QComboBox*>(typeName) : nullptr;
    if (!type)
        return form;
    form.m_type = type->currentIndex();
    // Those of the other types are hidden, and hold what was typed before the type was changed.
    const QList<QLineEdit*> edits = dialog->findChildren<QLineEdit*>();
    for (const QLineEdit* edit : edits) {
        if (edit->isVisibleTo(dialog))
            form.m_texts.insert(edit->objectName(), edit->text());
    }
    const QList<QCheckBox*> boxes = dialog->findChildren<QCheckBox*>();
    for (const QCheckBox* box : boxes) {
        if (box->isVisibleTo(dialog))
            form.m_marks.insert(box->objectName(), box->isChecked());
    }
    return form;
}

void LinkForm::fill(QWidget* dialog) const
{
    QComboBox* const type = dialog->findChild<QComboBox*>(typeName);
    if (!type)
        return;
    // First of all, as it empties fields. The plug-in hears the choice, not the index.
    type->setCurrentIndex(m_type);
    QMetaObject::invokeMethod(type, "activated", Q_ARG(int, m_type));
    for (auto text = m_texts.cbegin(); text != m_texts.cend(); ++text) {
        if (QLineEdit* const edit = dialog->findChild<QLineEdit*>(text.key()))
            edit->setText(text.value());
    }
    for (auto mark = m_marks.cbegin(); mark != m_marks.cend(); ++mark) {
        QCheckBox* const box = dialog->findChild<QCheckBox*>(mark.key());
        if (!box)
            continue;
        // The plug-in takes a mark from a click only.
        box->setChecked(!mark.value());
        box->click();
    }
}

bool LinkForm::isMarked(const QString& beginning) const
{
    for (auto mark = m_marks.cbegin(); mark != m_marks.cend(); ++mark) {
        if (mark.value() && mark.key().startsWith(beginning))
            return true;
    }
    return false;
}
