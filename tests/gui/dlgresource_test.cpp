// DlgResource: captions in both languages, the rows, and how OK, Cancel and a
// double click end it.
#include "support/fakevisa.h"

#include "link/frmDlgResource.h"
#include "link/linkstate.h"
#include "link/resourcechooser.h"
#include "link/visaopen.h"
#include "text/language.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace {

using DlgResourceTest = FakeVisaTest;

const QStringList rows{"USB0::0x1234::0x5678::A::INSTR", "TCPIP0::10.0.0.9::inst0::INSTR", ""};

TEST_F(DlgResourceTest, CaptionsFollowTheLanguage)
{
    frmDlgResource dialog;
    struct Expected {
        int language;
        QStringList captions;
    };
    for (const Expected& e :
         {Expected{LanguageEnglish, {"Choose a resource", "Resource ", "OK", "Cancel"}},
          Expected{LanguageChinese, {"选择设备资源", "当前系统中的资源", "确定", "取消"}}}) {
        dialog.LoadDlgResource(e.language);
        EXPECT_EQ((QStringList{dialog.windowTitle(), dialog.lblResource->text(), dialog.cmdOK->text(),
                               dialog.cmdCancel->text()}),
                  e.captions);
    }
    EXPECT_EQ(dialog.findChild<QComboBox*>("cmbResource"), dialog.cmbResource);
}

TEST_F(DlgResourceTest, OkTakesTheTextOfTheListAndCancelNothing)
{
    ResourceName = rows[1];
    frmDlgResource dialog;
    dialog.SetResourceRows(rows);
    dialog.cmdCancel->click();
    EXPECT_FALSE(dialog.GetOkCancel());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_EQ(ResourceName, rows[1]);

    EXPECT_EQ(dialog.cmbResource->count(), 3);
    EXPECT_EQ(dialog.cmbResource->currentText(), rows[1]) << "the chosen resource is shown first";

    dialog.cmbResource->setCurrentIndex(0);
    dialog.cmdOK->click();

    EXPECT_TRUE(dialog.GetOkCancel());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(ResourceName, rows[0]);
    EXPECT_EQ(dialog.cmbResource->property("Tag").toString(), "1");

    dialog.cmbResource->setEditText("TCPIP0::127.0.0.1::5025::SOCKET");
    dialog.cmdOK->click();
    EXPECT_EQ(ResourceName, "TCPIP0::127.0.0.1::5025::SOCKET") << "a typed resource is taken as it stands";
}

TEST_F(DlgResourceTest, DoubleClickOnARowActsAsOk)
{
    frmDlgResource dialog;
    dialog.SetResourceRows(rows);
    QAbstractItemView* view = dialog.cmbResource->view();
    const QModelIndex second = view->model()->index(1, 0);
    dialog.cmbResource->setCurrentIndex(1);
    Q_EMIT view->doubleClicked(second);
    EXPECT_TRUE(dialog.GetOkCancel());
    EXPECT_EQ(ResourceName, rows[1]);
}

// UsbOpen through the installed window: the modal dialog is answered by a
// timer, as a user would.
TEST_F(DlgResourceTest, UsbOpenShowsTheDialogForSeveralResources)
{
    InstallDlgResourceChooser();
    visa->resources = {rows[0].toStdString(), rows[1].toStdString()};
    DevicePresent = true;
    QStringList shown;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<frmDlgResource*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        for (int i = 0; i < dialog->cmbResource->count(); ++i)
            shown.append(dialog->cmbResource->itemText(i));
        dialog->cmbResource->setCurrentIndex(1);
        dialog->cmdOK->click();
    });

    UsbOpen();

    EXPECT_EQ(shown, rows);
    EXPECT_EQ(visa->countOf("open " + rows[1].toStdString()), 1);
    EXPECT_TRUE(DevicePresent);
}

} // namespace
