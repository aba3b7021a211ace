// A user's pyvisa script (Debian's pyvisa through /usr/bin/python3) on our
// shared library, against the simulator over each transport. Skipped only when
// that interpreter cannot import pyvisa.
#include "simprocess.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr char kPython[] = "/usr/bin/python3";
constexpr char kIdn[] = "Korva Technologies,KV7204B,KV7204T0007,00.03.03.SP1";
constexpr char kConfigured[] = "TCPIP0::192.0.2.7::inst0::INSTR  # the lab's other scope\n";

bool pyvisaImportable()
{
    QProcess python;
    python.start(kPython, {"-c", "import pyvisa"});
    return python.waitForFinished(30000) && python.exitStatus() == QProcess::NormalExit &&
           python.exitCode() == 0;
}

QString resourceName(const SimProcess& sim, const QString& transport)
{
    const auto port = [&](const char* name) { return QString::number(sim.port(name)); };
    if (transport == "socket") return "TCPIP0::127.0.0.1::" + port("socket") + "::SOCKET";
    if (transport == "hislip") return "TCPIP0::127.0.0.1::hislip0," + port("hislip") + "::INSTR";
    if (transport == "vxi11") return "TCPIP0::127.0.0.1::inst0::INSTR";
    return "ASRL" + sim.ptyPath() + "::INSTR";
}

class Pyvisa : public ::testing::TestWithParam<const char*> {
  protected:
    static void SetUpTestSuite()
    {
        available = pyvisaImportable();
        if (!available) return;
        sim = std::make_unique<SimProcess>(SELVANE_SIM_PATH);
        silent = std::make_unique<SimProcess>(SELVANE_SIM_PATH);
        started = sim->start({"--idn", kIdn}) && silent->start({"--pty", "off", "--silent", "*IDN?"});
        config = std::make_unique<QTemporaryDir>();
        QDir(config->path()).mkpath("selvane");
        QFile file(config->filePath("selvane/visa.conf"));
        started = started && file.open(QIODevice::WriteOnly) && file.write(kConfigured) > 0;
    }
    static void TearDownTestSuite()
    {
        sim.reset();
        silent.reset();
        config.reset();
    }

    static inline bool available = false;
    static inline bool started = false;
    static inline std::unique_ptr<SimProcess> sim;
    static inline std::unique_ptr<SimProcess> silent; // never answers "*IDN?"
    static inline std::unique_ptr<QTemporaryDir> config;
};

TEST_P(Pyvisa, ScriptRunsUnchangedOnOurLibrary)
{
    if (!available) GTEST_SKIP() << kPython << " cannot import pyvisa";
    ASSERT_TRUE(started) << sim->errorString().toStdString() << silent->errorString().toStdString();
    const QString transport = GetParam();
    QStringList arguments{SELVANE_TEST_DATA "/visa/data/pyvisa_session.py", SELVANE_VISA_SHARED_PATH,
                          transport, resourceName(*sim, transport)};
    // The silent simulator's portmapper is not the one the VXI-11 run asks, and it has no pty.
    if (transport == "socket" || transport == "hislip") arguments << resourceName(*silent, transport);

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("SELVANE_PORTMAPPER_PORT", QString::number(sim->port("portmapper")));
    environment.insert("XDG_CONFIG_HOME", config->path());
    environment.remove("SELVANE_VISA_CONF");
    environment.remove("SELVANE_VISA_RESOURCES");
    QProcess python;
    python.setProcessEnvironment(environment);
    python.setProcessChannelMode(QProcess::MergedChannels);
    python.start(kPython, arguments);
    ASSERT_TRUE(python.waitForFinished(120000)) << "pyvisa script hung";
    const std::string output = python.readAll().toStdString();
    EXPECT_EQ(python.exitCode(), 0) << output;
    EXPECT_NE(output.find("done " + transport.toStdString()), std::string::npos) << output;
}

INSTANTIATE_TEST_SUITE_P(Transports, Pyvisa, ::testing::Values("socket", "hislip", "vxi11", "asrl"),
                         [](const auto& info) { return std::string(info.param); });

} // namespace
