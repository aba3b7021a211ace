#include "frmwave_fixture.h"

#include "simprocess.h"

#include "acquire/waverecord.h"
#include "link/connection.h"
#include "link/linkstate.h"
#include "link/visaopen.h"
#include "state/programstate.h"
#include "visa/visaconfig.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

WaveWindowTest::WaveWindowTest()
{
    ResetProgramState();
    area.resize(900, 700);
    area.show();
}

WaveWindowTest::~WaveWindowTest()
{
    area.closeAllSubWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ResetProgramState();
}

frmWave& WaveWindowTest::open(int slot, const QString& title)
{
    WaveRecords[size_t(slot)].WaveTitle = title;
    window = CreateWaveWindow(&area, slot);
    EXPECT_TRUE(waitFor([this] { return !window->firstRun(); }));
    return *window;
}

bool WaveWindowTest::waitFor(const std::function<bool()>& done, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (!done()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
    return true;
}

void WaveWindowTest::resizeInner(QSize inner)
{
    QWidget* child = window->parentWidget();
    child->resize(inner + child->size() - window->size());
    QCoreApplication::processEvents();
}

int WaveWindowTest::paneLeft() const
{
    return window->findChild<QWidget*>(QStringLiteral("BackPic"))->x();
}

QStringList WaveWindowTest::boxTexts() const
{
    QStringList texts;
    for (const RecordedBox& box : platform->boxes)
        texts.append(box.text);
    return texts;
}

void SimWaveWindowTest::SetUpTestSuite()
{
    sim = std::make_unique<SimProcess>(QStringLiteral(SELVANE_SIM_PATH));
    if (!sim->start()) sim.reset();
}

void SimWaveWindowTest::TearDownTestSuite()
{
    sim.reset();
}

void SimWaveWindowTest::SetUp()
{
    ASSERT_TRUE(sim) << "kv7200b-sim did not start";
    qputenv("SELVANE_VISA", "builtin");
    const QString socket = QStringLiteral("TCPIP0::127.0.0.1::%1::SOCKET").arg(sim->port("socket"));
    // The find lists instruments only: the socket is opened as the resource
    // chosen beforehand, while the find sees the HiSLIP instrument.
    const QString hislip = QStringLiteral("TCPIP0::127.0.0.1::hislip0,%1::INSTR").arg(sim->port("hislip"));
    selvaneVisaSetConfiguredResources({socket.toStdString(), hislip.toStdString()});
    TransportType = TransportVisa;
    ResourceName = socket;
    ResourceChosen = true;
    OpenVisaRM();
    ConnectDevice();
    ASSERT_TRUE(Connected) << boxTexts().join("; ").toStdString();
}

void SimWaveWindowTest::TearDown()
{
    DisconnectDevice();
    CloseVisaRM();
    selvaneVisaSetConfiguredResources({});
}
