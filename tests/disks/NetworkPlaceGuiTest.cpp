#include "DisksFixture.h"
#include "NetworkPlace.h"

#include <QComboBox>
#include <QSpinBox>

#include <algorithm>

namespace quillon {

/// How the window adds and edits places on servers.
class NetworkPlaceDialogTest : public DisksWindowFixture {
protected:
    using Field = NetworkPlace::Field;

    void openDialog()
    {
        open();
        QMenu* const menu = shown<QPushButton>(localizedString("disksAddDiskTitle"))->menu();
        Q_EMIT menu->aboutToShow();
        menu->findChild<QAction*>(u"addPlace"_s)->trigger();
        // A window counts as active already where the one that it belongs to is.
        ASSERT_TRUE(QTest::qWaitFor([this] { return dialog() && QApplication::activeWindow() == dialog(); }));
    }
    QDialog* dialog() const { return shown<QDialog>(u"networkPlace"_s); }
    void press(Qt::Key key)
    {
        QTest::keyClick(QApplication::focusWidget(), key);
        runLoop_.advance(1s);
    }
    void type(const char* text)
    {
        press(Qt::Key_Tab);
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
    }
    QLineEdit* field(Field field, NetworkPlace::Kind kind) const { return fieldNamed(fieldTitle(field, kind)); }
    QString message() const { return shown<QLabel>(u"message"_s)->text(); }
    void answerTrial(const QVariantMap& answer, int status = 0)
    {
        tools_.answer(u"--try"_s, answer);
        tools_.answers[u"--try"_s].status = status;
    }
    /// The last one that was about a place on a server.
    TaskRequest lastCall() const
    {
        const auto& calls = tools_.launched();
        const auto last = std::find_if(calls.rbegin(), calls.rend(), [](const TaskRequest& call) {
            return call.arguments.first() == u"setdestination"_s;
        });
        return last == calls.rend() ? TaskRequest() : *last;
    }

    const QVariantMap place_ = disk(u"P"_s, {{u"Kind"_s, u"Network"_s},
                                             {u"URL"_s, u"rest:https://anna@nas/p"_s},
                                             {u"DownloadLimit"_s, 64LL},
                                             {u"RecoveryKeyMissing"_s, 1LL}});
};

TEST_F(NetworkPlaceDialogTest, AddsAServerWhoseKeyIsUnknownByKeyboard)
{
    openDialog();
    EXPECT_FALSE(isReady(u"goOn"_s));
    for (const char* text : {"nas.example.org", "", "/srv/backups", "anna", "/k"})
        type(text);
    answerTrial({{u"Cause"_s, u"DestinationMissing"_s}}, 4);
    press(Qt::Key_Return);
    field(Field::KeyFile, NetworkPlace::Kind::Sftp)->setFocus(); // to be mended, and tried again
    answerTrial({{u"Cause"_s, u"UnknownHostKey"_s}, {u"HostKey"_s, QVariantMap{{u"Fingerprint"_s, u"SHA256:x"_s}}}},
                16);
    press(Qt::Key_Return);
    const QString trial = u"setdestination --try -X --credentials - "_s;
    const QString url = u"sftp://anna@nas.example.org/srv/backups"_s;
    EXPECT_EQ(lastCall().arguments.join(u' '), trial + url);
    EXPECT_EQ(lastCall().input, "key-file=/k\n");
    ASSERT_TRUE(shown<QLineEdit>(u"fingerprint"_s)) << "Return tries anew";
    EXPECT_EQ(shown<QLineEdit>(u"fingerprint"_s)->text(), u"SHA256:x"_s);
    EXPECT_EQ(QApplication::focusWidget()->accessibleDescription(), message()) << "is heard";

    answerTrial({{u"Contents"_s, u"Empty"_s}});
    press(Qt::Key_Return);
    EXPECT_EQ(lastCall().arguments.join(u' '), trial + u"--accept-host-key SHA256:x "_s + url);
    EXPECT_TRUE(tools_.changes.isEmpty()) << "nothing is kept of what was only tried";

    tools_.answer(u"setdestination"_s, QVariantMap{{u"Cause"_s, u"NoPermission"_s}});
    tools_.answers[u"setdestination"_s].status = 1;
    press(Qt::Key_Return);
    EXPECT_EQ(message(), localizedString("disksPlaceNoPermission"));
    EXPECT_EQ(field(Field::Server, NetworkPlace::Kind::Sftp)->text(), u"nas.example.org"_s) << "nothing is lost";
    tools_.answers[u"setdestination"_s].status = 0;
    press(Qt::Key_Return);
    tell({disk(u"A"_s), place_});
    press(Qt::Key_Return);
    EXPECT_TRUE(tools_.changes.contains(u"setdestination -a -X --credentials - --accept-host-key SHA256:x "_s + url));
    EXPECT_FALSE(dialog());
    EXPECT_TRUE(shown<QDialog>(u"recoveryKey"_s));
}

TEST_F(NetworkPlaceDialogTest, SecretsGoNowhereButToTheInputOfTheTool)
{
    openDialog();
    shown<QComboBox>(u"kind"_s)->setCurrentIndex(static_cast<int>(NetworkPlace::Kind::S3));
    const std::pair<Field, QString> texts[] = {{Field::Server, u"s3.example.com"_s},
                                               {Field::Path, u"bucket"_s},
                                               {Field::AccessKey, u"ACCESS"_s},
                                               {Field::SecretKey, u"SECRET"_s}};
    for (const auto& [which, text] : texts)
        field(which, NetworkPlace::Kind::S3)->setText(text);
    answerTrial({{u"Cause"_s, u"WrongKey"_s}}, 15);
    click(u"goOn"_s);
    EXPECT_FALSE(isReady(u"goOn"_s)) << "the recovery key is lacking";
    shown<QLineEdit>(u"recoveryKey"_s)->setText(u"8K2VT"_s);
    tools_.answers[u"adopt"_s].status = 15;
    click(u"goOn"_s);
    EXPECT_TRUE(isReady(u"goOn"_s)) << "it may have been mistyped";
    tools_.answers[u"adopt"_s].status = 0;
    click(u"goOn"_s);
    EXPECT_FALSE(dialog());
    int calls = 0;
    for (const TaskRequest& call : tools_.launched()) {
        for (const QString& secret : {u"ACCESS"_s, u"SECRET"_s, u"8K2VT"_s})
            EXPECT_FALSE((call.arguments + call.environment).join(u' ').contains(secret));
        const QByteArray lines = "access-key=ACCESS\nsecret-key=SECRET\n";
        const bool adopts = call.arguments.first() == u"adopt"_s;
        EXPECT_EQ(call.input.value_or(lines), adopts ? lines + "\n8K2VT\n" : lines);
        calls += call.input.has_value();
    }
    EXPECT_EQ(calls, 3);
}

TEST_F(NetworkPlaceDialogTest, AServerThatHangsCanBeGivenUpAndAChangedKeyIsTrustedTwice)
{
    openDialog();
    field(Field::Server, NetworkPlace::Kind::Sftp)->setText(u"sftp://anna@nas:2222/~/b"_s);
    field(Field::Server, NetworkPlace::Kind::Sftp)->setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(field(Field::Port, NetworkPlace::Kind::Sftp)->text(), u"2222"_s) << "what was pasted is taken apart";
    tools_.answers[u"--try"_s].fault = TmutilScript::Fault::Hang;
    click(u"goOn"_s);
    EXPECT_EQ(message(), localizedString("disksPlaceAsking"));
    press(Qt::Key_Escape);
    EXPECT_EQ(tools_.liveChildren(), 0);
    EXPECT_TRUE(isReady(u"goOn"_s)) << "the window is there as it was";

    tools_.answers[u"--try"_s].fault = TmutilScript::Fault::None;
    answerTrial({{u"Cause"_s, u"ChangedHostKey"_s}, {u"HostKey"_s, QVariantMap{{u"Fingerprint"_s, u"SHA256:x"_s}}}},
                16);
    click(u"goOn"_s);
    const auto calls = tools_.launched().size();
    click(u"goOn"_s);
    EXPECT_EQ(answer(alertFirstButtonReturn).first(), localizedString("disksPlaceChangedKeyMessage").arg(u"nas"_s));
    EXPECT_EQ(tools_.launched().size(), calls);
    click(u"goOn"_s);
    answer(alertSecondButtonReturn);
    EXPECT_TRUE(lastCall().arguments.contains(u"SHA256:x"_s));
}

TEST_F(NetworkPlaceDialogTest, OfAPlaceThatIsSetOnlyWhatIsGivenAnewIsChanged)
{
    tell({disk(u"A"_s), place_});
    answerTrial({{u"Contents"_s, u"Backups"_s}});
    const auto edit = [this] {
        list(Disks)->setCurrentRow(1);
        click(u"edit"_s);
    };
    open();
    list(Disks)->setCurrentRow(0);
    EXPECT_FALSE(isReady(u"edit"_s)) << "a disk has nothing to edit";
    edit();
    shown<QSpinBox>(u"disksPlaceUpload"_s)->setValue(512);
    click(u"goOn"_s);
    click(u"goOn"_s);
    const QString change = u"setdestination -a -X --upload-limit %1 --download-limit 64 %2rest:https://anna@nas/p"_s;
    EXPECT_EQ(tools_.changes.last(), change.arg(u"512"_s, QString()));
    EXPECT_FALSE(shown<QDialog>(u"recoveryKey"_s)) << "it is no new one";

    edit();
    const auto kind = NetworkPlace::Kind::Rest;
    field(Field::Certificate, kind)->setText(u"/c"_s);
    EXPECT_EQ(message(), localizedString("disksPlaceUserAndPassword"))
        << "the password is not told, and replaced whole";
    field(Field::Password, kind)->setText(u"new"_s);
    click(u"goOn"_s);
    click(u"goOn"_s);
    EXPECT_EQ(tools_.changes.last(), change.arg(u"0"_s, u"--credentials - "_s));
}

} // namespace quillon
