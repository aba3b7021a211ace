#include "frame/frmOptions.h"
#include "guitest.h"
#include "link/connection.h"
#include "link/linkstate.h"
#include "link/visaopen.h"
#include "platform/testplatform.h"
#include "settings/softwaresettings.h"
#include "state/programstate.h"
#include "support/fakevisa.h"
#include "text/language.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {

const QString usbDevice = QStringLiteral("USB0::0x5345::0x1234::KV72040001::INSTR");

class OptionsTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetProgramState(); }
    void TearDown() override
    {
        dialog.reset();
        ResetProgramState();
    }

    frmOptions& open()
    {
        dialog = std::make_unique<frmOptions>();
        return *dialog;
    }
    template <typename T> T* find(const char* name) const
    {
        return Named<T>(dialog.get(), QString::fromLatin1(name));
    }
    QComboBox* combo(const char* name) const { return find<QComboBox>(name); }
    void click(const char* name) const { find<QPushButton>(name)->click(); }

    void connectInstrument()
    {
        instrument->resources = {usbDevice.toStdString()};
        instrument->replies["*IDN?"] = FakeVisa::SupportedIdentity;
        OpenVisaRM();
        ConnectDevice();
        ASSERT_TRUE(Connected);
        instrument->writes.clear();
    }

    ScopedTestPlatform test;
    ScopedFakeVisa instrument;
    std::unique_ptr<frmOptions> dialog;
};

TEST_F(OptionsTest, TheControlsShowTheSettings)
{
    StartupLoadCtrl = true;
    RefreshType = RefreshAuto;
    RefreshInterval = 20000;
    TransportType = 2;
    ComPort = 3;
    BaudRate = "19200";
    GpibAddress = 9;
    open();
    EXPECT_FALSE(find<QCheckBox>("HardwareCheck")->isChecked());
    EXPECT_FALSE(find<QCheckBox>("SheetStartLoadChk")->isChecked());
    EXPECT_TRUE(find<QCheckBox>("CtrlStartLoadChk")->isChecked());
    EXPECT_TRUE(find<QRadioButton>("OptRefreshType_1")->isChecked());
    EXPECT_TRUE(combo("IntervalCombo")->isEnabled());
    EXPECT_EQ(combo("IntervalCombo")->currentText(), "20");
    EXPECT_TRUE(find<QRadioButton>("PortSelectOption_1")->isChecked());
    EXPECT_EQ(combo("PortCombo")->currentText(), "COM3");
    EXPECT_EQ(combo("BaudCombo")->currentText(), "19200");
    EXPECT_EQ(combo("GPIB_AddrCombo")->currentText(), "9");
    EXPECT_EQ(find<QTabWidget>("tbsOptions")->count(), 3);
}

TEST_F(OptionsTest, NoDeviceIsSaidInTheLanguageInForce)
{
    for (int language : {LanguageEnglish, LanguageChinese}) {
        Language = language;
        open();
        ASSERT_EQ(combo("DeviceCombo")->count(), 1);
        EXPECT_EQ(combo("DeviceCombo")->itemText(0), IsChinese(language) ? u"无设备" : u"No Device");
    }
    EXPECT_EQ(dialog->windowTitle(), u"选项");
    EXPECT_EQ(find<QPushButton>("cmdOK")->text(), u"确定");
}

TEST_F(OptionsTest, DevicesAreListedShortAndChosenInFull)
{
    instrument->resources = {"USB0::0x1::0x2::A::INSTR", usbDevice.toStdString()};
    OpenVisaRM();
    open();
    EXPECT_EQ(instrument->countOf("findRsrc "), 1);
    EXPECT_EQ(instrument->countOf("findRsrc USB?*INSTR"), 1);
    ASSERT_EQ(combo("DeviceCombo")->count(), 2);
    EXPECT_EQ(combo("DeviceCombo")->itemText(1), "0x5345 0x1234 KV72040001");
    combo("DeviceCombo")->setCurrentIndex(1);
    click("cmdOK");
    EXPECT_TRUE(ResourceChosen);
    EXPECT_EQ(ResourceName, usbDevice);
}

TEST_F(OptionsTest, AutoAndFiveStoreFiveThousand)
{
    open();
    find<QRadioButton>("OptRefreshType_1")->click();
    combo("IntervalCombo")->setCurrentText("5");
    find<QRadioButton>("PortSelectOption_1")->click();
    find<QCheckBox>("HardwareCheck")->click();
    click("cmdOK");
    EXPECT_TRUE(dialog->OkClicked);
    EXPECT_EQ(RefreshType, "Auto");
    EXPECT_EQ(RefreshInterval, 5000);
    EXPECT_EQ(TransportType, 2);
    EXPECT_TRUE(StartupCheckHardware);
    EXPECT_FALSE(ResourceChosen);
    EXPECT_EQ(ResourceName, "");
}

TEST_F(OptionsTest, CancelChangesNothing)
{
    ResourceChosen = true;
    ResourceName = usbDevice;
    open();
    EXPECT_TRUE(find<QRadioButton>("OptRefreshType_0")->isChecked());
    EXPECT_FALSE(combo("IntervalCombo")->isEnabled()) << "single refresh has no interval";
    find<QRadioButton>("OptRefreshType_1")->click();
    EXPECT_TRUE(combo("IntervalCombo")->isEnabled());
    find<QRadioButton>("PortSelectOption_1")->click();
    combo("BaudCombo")->setCurrentText("300");
    click("cmdCancel");
    EXPECT_FALSE(dialog->OkClicked);
    EXPECT_EQ(RefreshType, "Single");
    EXPECT_EQ(TransportType, 0);
    EXPECT_EQ(BaudRate, "9600");
    EXPECT_TRUE(ResourceChosen);
    EXPECT_EQ(ResourceName, usbDevice);
}

// A new baud rate is told first; changed or not, the link closes.
TEST_F(OptionsTest, OkTellsANewBaudRateThenClosesTheLink)
{
    for (const char* baud : {"38400", ""}) {
        SCOPED_TRACE(baud);
        connectInstrument();
        open();
        std::vector<std::string> sent{":KEY:LOCK DISABLE"};
        if (*baud) {
            combo("BaudCombo")->setCurrentText(baud);
            sent.insert(sent.begin(), std::string(":RS232:BAUD ") + baud);
        }
        click("cmdOK");
        EXPECT_EQ(instrument->commands(), sent);
        EXPECT_FALSE(Connected);
        EXPECT_EQ(BaudRate, "38400");
    }
}

} // namespace
