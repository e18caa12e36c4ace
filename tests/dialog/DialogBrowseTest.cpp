// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Choosing an application in the real file chooser.

#include <functional>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "RecordingTrace.h"
#include "Test.h"

namespace
{
/** Waits beside the chooser's own event loop until it is on the screen, then acts on it once. */
class ChooserUser : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void(QFileDialog*)> Action;

    explicit ChooserUser(const Action& action)
        : m_action(action)
        , m_hasActed(false)
    {
        connect(&m_timer, SIGNAL(timeout()), this, SLOT(look()));
        m_timer.start(5);
    }

    bool hasActed() const { return m_hasActed; }

private Q_SLOTS:
    void look()
    {
        QFileDialog* const chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!chooser || !chooser->isVisible())
            return;
        m_timer.stop();
        m_hasActed = true;
        m_action(chooser);
    }

private:
    QTimer m_timer;
    Action m_action;
    bool m_hasActed;
};

void press(QFileDialog* chooser, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(chooser->findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
}

void cancel(QFileDialog* chooser)
{
    press(chooser, QDialogButtonBox::Cancel);
}
} // namespace

class DialogBrowseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void chooserAsTheUserSeesIt();
    void chooserStartsInTheCurrentFolder();
    void chosenFileReplacesThePathOnly();
    void longPathShowsItsBeginning();
    void chosenFileEnablesOkWithAName();
    void cancelKeepsThePath_data();
    void cancelKeepsThePath();
    void pathEditMissing();
    void pathEditMissingAfterwards();
    void dialogObjectGoneWhileChoosing();
    void hostGoneWhileChoosing();

private:
    void choose(const OpenDialog& dialog, const QString& name);
    static void browse(const OpenDialog& dialog, const ChooserUser::Action& action);

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_path; ///< of the folder, as the chooser gives it
    QString m_previousFolder;
};

void DialogBrowseTest::init()
{
    m_previousFolder = QDir::currentPath();
    m_folder.reset(new QTemporaryDir);
    m_path = QDir(m_folder->path()).canonicalPath();
    QFile file(m_path + "/program");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir::setCurrent(m_path));
}

void DialogBrowseTest::cleanup()
{
    QDir::setCurrent(m_previousFolder);
    m_folder.reset();
}

void DialogBrowseTest::browse(const OpenDialog& dialog, const ChooserUser::Action& action)
{
    const ChooserUser user(action);
    QTest::mouseClick(dialog->m_browseBtn, Qt::LeftButton);
    QVERIFY2(user.hasActed(), "No file chooser came up");
}

void DialogBrowseTest::choose(const OpenDialog& dialog, const QString& name)
{
    browse(dialog, [&](QFileDialog* chooser) {
        chooser->findChild<QLineEdit*>("fileNameEdit")->setText(name);
        press(chooser, QDialogButtonBox::Open);
        if (chooser->isVisible())
            chooser->reject();
    });
}

void DialogBrowseTest::chooserAsTheUserSeesIt()
{
    const OpenDialog dialog;
    browse(dialog, [&](QFileDialog* chooser) {
        cancel(chooser);
        QCOMPARE(chooser->windowTitle(), "Open");
        QCOMPARE(chooser->parentWidget(), dialog->m_mainWidget);
        QCOMPARE(chooser->acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(chooser->fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(int(chooser->options() & ~QFileDialog::DontUseNativeDialog), 0);
        QCOMPARE(chooser->nameFilters(), QFileDialog().nameFilters());
        QCOMPARE(chooser->findChild<QLineEdit*>("fileNameEdit")->text(), "");
    });
}

void DialogBrowseTest::chooserStartsInTheCurrentFolder()
{
    const OpenDialog dialog;
    QString start;
    const ChooserUser::Action look = [&](QFileDialog* chooser) {
        start = chooser->directory().absolutePath();
        cancel(chooser);
    };
    browse(dialog, look);
    QCOMPARE(start, m_path);
    QVERIFY(QDir().mkdir(m_path + "/below"));
    QVERIFY(QDir::setCurrent(m_path + "/below"));
    browse(dialog, look);
    QCOMPARE(start, m_path + "/below");
}

void DialogBrowseTest::chosenFileReplacesThePathOnly()
{
    OpenDialog dialog;
    dialog.enter(dialog->m_appPathEdit, "/usr/bin/editor");
    dialog.enter(dialog->m_appParamEdit, "--new");
    choose(dialog, "program");
    QCOMPARE(dialog->m_appPathEdit->text(), m_path + "/program");
    QCOMPARE(dialog->m_appNameEdit->text(), "");
    QCOMPARE(dialog->m_appParamEdit->text(), "--new");
    QCOMPARE(dialog->m_EditUrlName->text(), "");
}

void DialogBrowseTest::longPathShowsItsBeginning()
{
    const OpenDialog dialog;
    const QString folder = m_path + '/' + QString(100, 'd');
    QVERIFY(QDir().mkdir(folder));
    QFile file(folder + "/program");
    QVERIFY(file.open(QIODevice::WriteOnly));
    choose(dialog, file.fileName());
    QCOMPARE(dialog->m_appPathEdit->text(), file.fileName());
    QCOMPARE(dialog->m_appPathEdit->cursorPosition(), 0);
}

void DialogBrowseTest::chosenFileEnablesOkWithAName()
{
    const char* const entered[] = {"", "Editor"};
    for (const char* name : entered) {
        OpenDialog dialog;
        dialog.enter(dialog->m_appNameEdit, name);
        QVERIFY(!dialog.isOkEnabled());
        choose(dialog, "program");
        QCOMPARE(dialog.isOkEnabled(), *name != '\0');
    }
}

void DialogBrowseTest::cancelKeepsThePath_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << "";
    QTest::newRow("typed") << "/usr/bin/editor";
}

void DialogBrowseTest::cancelKeepsThePath()
{
    QFETCH(QString, path);
    OpenDialog dialog;
    dialog.fill(0, "Editor", path);
    QCOMPARE(dialog->m_appPathEdit->cursorPosition(), path.size());
    browse(dialog, cancel);
    QCOMPARE(dialog->m_appPathEdit->text(), path);
    QCOMPARE(dialog->m_appPathEdit->cursorPosition(), 0);
    QCOMPARE(dialog.isOkEnabled(), !path.isEmpty());
    QVERIFY(dialog.isOpen());
}

void DialogBrowseTest::pathEditMissing()
{
    const OpenDialog dialog;
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), "m_appPathEdit"));
        // The chooser comes up all the same.
        choose(dialog, "program");
    }
    QCOMPARE(trace.countDebug(nullTrace("onClickBrowseButton")), 1);
    QCOMPARE(dialog->m_appPathEdit->text(), "");
}

void DialogBrowseTest::pathEditMissingAfterwards()
{
    const OpenDialog dialog;
    const RecordingTrace trace;
    QScopedPointer<NullMember> missing;
    browse(dialog, [&](QFileDialog* chooser) {
        missing.reset(new NullMember(memberOf(dialog.get(), "m_appPathEdit")));
        cancel(chooser);
    });
    missing.reset();
    QCOMPARE(trace.countDebug(nullTrace("onClickBrowseButton")), 1);
}

void DialogBrowseTest::dialogObjectGoneWhileChoosing()
{
    OpenDialog dialog;
    const QPointer<ExtendDialog> frame = dialog->m_frameDialog;
    const QPointer<QLineEdit> path = dialog->m_appPathEdit;
    browse(dialog, [&](QFileDialog* chooser) {
        dialog.deleteDialogObject();
        cancel(chooser);
    });
    QVERIFY(!dialog.get());
    QVERIFY(frame);
    QCOMPARE(path->text(), "");
}

void DialogBrowseTest::hostGoneWhileChoosing()
{
    OpenDialog dialog;
    const RecordingTrace trace;
    browse(dialog, [&](QFileDialog*) { dialog.deleteHost(); });
    QVERIFY(!dialog.host());
    QVERIFY(!dialog->m_appPathEdit);
    QCOMPARE(trace.countDebug(nullTrace("onClickBrowseButton")), 1);
}

REGISTER_TEST(DialogBrowseTest)
#include "DialogBrowseTest.moc"
