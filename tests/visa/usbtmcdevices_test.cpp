#include "visa/usbtmcdevices.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

using namespace selvane::visa;
namespace fs = std::filesystem;

namespace {

// A throw-away tree shaped like sysfs: devices/... with the attribute files,
// and class/usbmisc/usbtmcN/device as a symbolic link to the interface.
class FakeSysfs : public ::testing::Test {
  protected:
    void SetUp() override
    {
        root = fs::temp_directory_path() / ("selvane-sysfs-" + std::to_string(::getpid()) + "-" +
                                            ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(root);
        fs::create_directories(classDir());
    }
    void TearDown() override { fs::remove_all(root); }

    fs::path classDir() const { return root / "class" / "usbmisc"; }

    void write(const fs::path& file, const std::string& text)
    {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    // A USB device with its attribute files; an empty value leaves that file out.
    fs::path device(const std::string& name, const std::string& vendor, const std::string& product,
                    const std::string& serial)
    {
        const fs::path dir = root / "devices" / "usb1" / name;
        fs::create_directories(dir);
        if (!vendor.empty()) write(dir / "idVendor", vendor + "\n");
        write(dir / "idProduct", product + "\n");
        if (!serial.empty()) write(dir / "serial", serial + "\n");
        write(dir / "manufacturer", "Korva Technologies\n");
        write(dir / "product", "KV7204B\n");
        return dir;
    }

    void node(const std::string& node, const fs::path& usbDevice, const std::string& interface)
    {
        const fs::path interfaceDir = usbDevice / (usbDevice.filename().string() + ":1." + interface);
        write(interfaceDir / "bInterfaceNumber", interface + "\n");
        fs::create_directories(classDir() / node);
        fs::create_directory_symlink(fs::relative(interfaceDir, classDir() / node),
                                     classDir() / node / "device");
    }

    fs::path root;
};

TEST_F(FakeSysfs, ListsEveryReadableUsbtmcNodeInNodeOrder)
{
    const fs::path scope = device("1-1", "1a2b", "7204", "KV7204T0001");
    const fs::path dual = device("1-2", "1a2b", "7102", "dual");
    const fs::path broken = device("1-3", "", "7102", "nobody");
    node("usbtmc0", scope, "00");
    node("usbtmc10", dual, "03");
    node("usbtmc2", dual, "01");
    node("usbtmc1", broken, "00");
    fs::create_directories(classDir() / "hiddev0");

    const auto devices = listUsbtmcDevices(classDir().string());
    ASSERT_EQ(devices.size(), 3u);
    EXPECT_EQ(devices[0].node, "usbtmc0");
    EXPECT_EQ(devices[0].vendorId, 0x1A2B);
    EXPECT_EQ(devices[0].productId, 0x7204);
    EXPECT_EQ(devices[0].serial, "KV7204T0001");
    EXPECT_EQ(devices[0].manufacturer, "Korva Technologies");
    EXPECT_EQ(devices[0].product, "KV7204B");
    EXPECT_EQ(devices[0].resourceName(), "USB0::0x1A2B::0x7204::KV7204T0001::INSTR");
    EXPECT_EQ(devices[1].node, "usbtmc2");
    EXPECT_EQ(devices[1].interfaceNumber, 1);
    EXPECT_EQ(devices[1].resourceName(), "USB0::0x1A2B::0x7102::dual::1::INSTR");
    EXPECT_EQ(devices[2].node, "usbtmc10");
    EXPECT_EQ(devices[2].interfaceNumber, 3);
}

TEST_F(FakeSysfs, FindsTheDeviceANameMeans)
{
    node("usbtmc0", device("1-1", "1a2b", "7204", "KV7204T0001"), "00");
    const fs::path dual = device("1-2", "1a2b", "7102", "dual");
    node("usbtmc1", dual, "03");
    node("usbtmc2", dual, "01");
    const auto devices = listUsbtmcDevices(classDir().string());

    const struct {
        const char* name;
        const char* node; // null: none
    } cases[] = {
        {"USB0::0x1A2B::0x7204::kv7204t0001::INSTR", "usbtmc0"},
        {"USB::0x1a2b::0x7102::DUAL::INSTR", "usbtmc2"}, // the lowest interface
        {"USB::0x1a2b::0x7102::dual::3::INSTR", "usbtmc1"},
        {"USB::0x1a2b::0x7102::dual::2::INSTR", nullptr},
        {"USB::0x1a2b::0x7204::other::INSTR", nullptr},
        {"USB::0x1a2c::0x7204::KV7204T0001::INSTR", nullptr},
    };
    for (const auto& c : cases) {
        const auto name = parseResourceName(c.name);
        ASSERT_TRUE(name) << c.name;
        const UsbtmcDevice* found = findUsbtmcDevice(devices, *name);
        EXPECT_EQ(found ? found->node : "none", c.node ? c.node : "none") << c.name;
    }
}

TEST_F(FakeSysfs, AMissingOrEmptyClassDirectoryListsNothing)
{
    EXPECT_TRUE(listUsbtmcDevices(classDir().string()).empty());
    EXPECT_TRUE(listUsbtmcDevices((root / "absent").string()).empty());
}

} // namespace
