#include "Tests/Scenario/InProcess.h"
#include "Tests/Scenario/SettingsFixture.h"

#include "Host/Channel/ChannelErrors.h"
#include "Host/Json.h"

#include <csignal>
#include <regex>

namespace Scenario {

namespace {

using Host::Parameter;

constexpr std::uint32_t agc = 0x46020000;
constexpr std::uint32_t sharpness = 0x18030000; // a setting in the middle of the file

/// The camera's settings differ from the file's, and automatic modes are on.
class HostRestore : public HostSettings {
protected:
    /// @param first   the settings saved to the file
    /// @param changed the settings of the camera afterwards
    void Prepare(const std::string& cameraModel, const std::string& first, const std::string& changed) {
        model = cameraModel;
        std::filesystem::remove(state);
        ASSERT_EQ(Run("set " + model + " " + first).code, 0);
        ASSERT_EQ(Run("save " + model + " " + saved).code, 0);
        ASSERT_EQ(Run("set " + model + " " + changed).code, 0);
    }
    [[nodiscard]] Outcome Restore(const Observer& observer, bool json = false, bool network = false) const {
        signal(SIGHUP, SIG_DFL); // nohup may have ignored it
        Host::Invocation::Given given = {{Parameter::Camera, {model}}, {Parameter::File, {saved}}};
        if (network) {
            given[Parameter::Network] = {};
        }
        if (!only.empty()) {
            given[Parameter::Only] = {only};
        }
        return RunInProcess(Host::Restore, given, observer, state, json);
    }
    [[nodiscard]] std::string Get(const std::string& names) const { return Run("get " + model + " " + names).out; }

    std::string model;
    std::string only; ///< names to restore; empty for all
};

bool Writes(const Host::Access& access, std::uint32_t address) { return access.write && access.address == address; }

/// Acts once, after the first matching access.
Observer Once(const std::function<bool(const Host::Access&)>& isIt, const std::function<void()>& action) {
    return [=, done = false](const Host::Access& access) mutable {
        if (!done && isIt(access)) {
            done = true;
            action();
        }
    };
}

/// The number of functions shown as restored.
std::string RestoredIn(const std::string& out) {
    const std::regex line("(^|\n)[a-z.0-9]+ +(ok|unchanged|rounded) ");
    return std::to_string(std::distance(std::sregex_iterator(out.begin(), out.end(), line), std::sregex_iterator()));
}

} // namespace

TEST_F(HostRestore, ThatIsInterruptedPutsModesBackAndSaysWhatIsDone) {
    for (const char* each : {"Orvik-390C", "Cerix-MV7"}) {
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
            Prepare(each, "agc=2 sharpness=3 lutindex=0", "agc=1 sharpness=9 negativeimage=on");
            const auto interrupt =
                Once([](const auto& access) { return Writes(access, sharpness); }, [=] { raise(signal); });
            const Outcome run = Restore(interrupt);
            EXPECT_EQ(run.code, 1);
            EXPECT_TRUE(Has(run.out, "\nsharpness                 ok          9 -> 3\n"));
            EXPECT_TRUE(run.out.ends_with("\nagc                       reverted    1, as before\n")) << run.out;
            EXPECT_TRUE(std::regex_match(run.err, std::regex("qdv12host: interrupted; " + RestoredIn(run.out) +
                                                             " of [0-9]+ functions restored, 5 skipped, [0-9]+ not "
                                                             "reached; automatic modes reverted: agc\n")))
                << run.err;
            EXPECT_EQ(Get("agc sharpness negativeimage"), "agc=1\nsharpness=3\nnegativeimage=on\n");
        }
    }
}

TEST_F(HostRestore, ThatIsInterruptedLeavesTheModesAloneThatAreRestored) {
    Prepare("Orvik-390C", "agc=2 acc=off", "agc=1 acc=1");
    bool isOff = false;
    const auto isSet = [&](const Host::Access& access) {
        isOff = isOff || (Writes(access, agc) && access.data[0] == 0);
        return isOff && Writes(access, agc) && access.data[0] == 2;
    };
    const Outcome run = Restore(Once(isSet, [] { raise(SIGTERM); }));
    EXPECT_EQ(run.code, 1);
    EXPECT_TRUE(Has(run.out, "\nagc                       ok          1 -> 2\n"
                             "acc                       reverted    1, as before\n"));
    EXPECT_EQ(Get("agc acc"), "agc=2\nacc=1\n");
}

TEST_F(HostRestore, NamesTheModesThatItCannotPutBack) {
    Prepare("Orvik-390C", "agc=off sharpness=3", "agc=1 sharpness=9");
    bool isStuck = false;
    const Outcome refused = Restore([&](const Host::Access& access) {
        if (Writes(access, sharpness)) {
            raise(SIGTERM);
            isStuck = true;
        }
        if (isStuck && access.address == agc) {
            throw std::runtime_error("no answer");
        }
    });
    EXPECT_TRUE(refused.out.ends_with("\nagc                       left off    no answer; it was 1\n")) << refused.out;
    EXPECT_TRUE(refused.err.ends_with(" not reached; automatic modes left off: agc\n")) << refused.err;
}

TEST_F(HostRestore, NamesTheModesThatAreOffWhenTheCameraIsLost) {
    for (const std::uint32_t last : {agc, sharpness}) {
        for (const bool json : {false, true}) {
            Prepare("Orvik-390C", "agc=off sharpness=3", "agc=1 sharpness=9");
            bool isLost = false;
            const auto lose = [&](const Host::Access& access) {
                isLost = isLost || Writes(access, last);
                if (isLost) {
                    throw Host::ChannelLost(access.operation, access.address, "it is gone");
                }
            };
            const Outcome lost = Restore(lose, json);
            EXPECT_EQ(lost.code, 1);
            const std::string done =
                last == agc ? "0 of [0-9]+ functions restored" : "[0-9]+ of [0-9]+ functions restored, 5 skipped";
            EXPECT_TRUE(std::regex_match(lost.err,
                                         std::regex("qdv12host: [a-z]+: WriteMem at 0x[0-9A-F]+ failed: it is gone; " +
                                                    done + ", [0-9]+ not reached; automatic modes left off: agc\n")))
                << lost.err;
            EXPECT_EQ(Has(lost.out, "username"), last == sharpness);
            EXPECT_FALSE(Has(lost.out, "sharpness"));
            EXPECT_EQ(json, lost.out.starts_with('['));
        }
    }
}

TEST_F(HostRestore, TellsAsJsonWhatIsDone) {
    Prepare("Orvik-390C", "agc=off sharpness=3", "agc=1 sharpness=9");
    const auto interrupt = Once([](const auto& access) { return Writes(access, sharpness); }, [] { raise(SIGTERM); });
    const Outcome run = Restore(interrupt, true);
    EXPECT_EQ(run.code, 1);
    const Host::Json document = Host::Json::Parse(run.out);
    const auto& results = *document.Elements();
    EXPECT_EQ(*results.back()["name"].Text(), "sharpness");
    EXPECT_EQ(*results.back()["value"].Number(), 3);
    const auto mode = std::find_if(results.begin(), results.end(),
                                   [](const Host::Json& each) { return *each["name"].Text() == "agc"; });
    ASSERT_NE(mode, results.end());
    EXPECT_EQ(*(*mode)["result"].Text(), "reverted");
    EXPECT_EQ(*(*mode)["saved"].Text(), "off");
    EXPECT_EQ(*(*mode)["value"].Number(), 1);
}

TEST_F(HostRestore, AndComparesOnlyWhatIsSelected) {
    for (const char* each : {"Orvik-390C", "Cerix-MV7"}) {
        Prepare(each, "agc=off gain=3 sharpness=4", "sharpness=9 gain=7 agc=1");
        const std::string both = saved + " " + model + " ";
        const std::string sharpnessDiffers = "sharpness                 4                       9\n";
        EXPECT_EQ(Run("diff " + both + "--only gain,overlayshow --only sharpness").out, sharpnessDiffers);
        EXPECT_EQ(Run("diff " + both + "--except agc").out, sharpnessDiffers) << "the gain is not comparable";
        EXPECT_EQ(Run("diff " + both + "--except agc,sharpness").code, 0);

        // The mode is off meanwhile, and on again at the end.
        const Outcome gain = Run("restore " + both + "--only gain --changed");
        EXPECT_EQ(gain.code, 0);
        EXPECT_TRUE(std::regex_match(gain.out, std::regex("gain                      ok          [0-9]+ -> 3\n"
                                                          "agc                       reverted    1, as before\n"
                                                          "1 ok, 1 reverted\n")))
            << gain.out;
        EXPECT_EQ(Get("agc sharpness"), "agc=1\nsharpness=9\n");
        const Outcome others = Run("restore " + both + "--except agc,gain --changed --json");
        const Host::Json document = Host::Json::Parse(others.out);
        const auto& results = *document["results"].Elements();
        EXPECT_EQ(std::count_if(results.begin(), results.end(),
                                [](const Host::Json& one) { return *one["result"].Text() == "ok"; }),
                  1);
        EXPECT_EQ(*document["summary"]["ok"].Number(), 1);
        EXPECT_GT(*document["summary"]["unchanged"].Number(), 20);
        EXPECT_EQ(Get("agc sharpness"), "agc=1\nsharpness=4\n");

        const std::string absent = "qdv12host: \"" + saved + "\" has no values of these: serialnumber\n";
        EXPECT_EQ(Run("restore " + both + "--only agc,serialnumber").code, 1);
        EXPECT_EQ(Get("agc"), "agc=off\n");
        const Outcome except = Run("restore " + both + "--only agc --except serialnumber");
        EXPECT_EQ(except.code, 0);
        EXPECT_EQ(except.err, absent);
        EXPECT_EQ(Run("diff " + both + "--only agc,serialnumber").err, absent);
        EXPECT_EQ(Run("restore " + both + "--only serialnumber").code, 2);
        for (const char* wrong : {"diff ", "restore "}) {
            EXPECT_TRUE(Has(Run(wrong + both + "--except gain,gian").err, "\"gian\"; did you mean \"gain\"?"));
        }
    }
    // What a mode that stays changes at once was set all the same.
    Prepare("Cerix-MV7", "exposuremode=resetrestart exposure=20", "exposure=200 exposuremode=freerunning");
    EXPECT_EQ(Run("restore " + saved + " Cerix-MV7 --only exposure").out,
              "exposure                  ok          33 -> 20\n");
    EXPECT_EQ(Get("exposuremode"), "exposuremode=freerunning\n");
    EXPECT_EQ(Run("set Cerix-MV7 exposuremode=resetrestart").code, 0);
    EXPECT_EQ(Get("exposure"), "exposure=20\n");
}

TEST_F(HostRestore, PutsBackAModeThatIsNotSelected) {
    only = "gain";
    for (const char* each : {"Orvik-390C", "Cerix-MV7"}) {
        Prepare(each, "agc=off gain=3", "gain=7 agc=1");
        const auto writesGain = [](const auto& access) { return Writes(access, 0x14010000); };
        const Outcome stopped = Restore(Once(writesGain, [] { raise(SIGTERM); }));
        EXPECT_EQ(stopped.err, "qdv12host: interrupted; 1 of 1 functions restored; automatic modes reverted: agc\n");
        EXPECT_EQ(Get("agc"), "agc=1\n");
        Prepare(each, "agc=off gain=3", "gain=7 agc=1");
        const Outcome lost = Restore([&](const Host::Access& access) {
            if (writesGain(access)) {
                throw Host::ChannelLost(access.operation, access.address, "it is gone");
            }
        });
        EXPECT_TRUE(Has(lost.err, "0 of 1 functions restored, 1 not reached; automatic modes left off: agc\n"));
    }
}

TEST_F(HostRestore, BeginsWithAModeAsWell) {
    Prepare("Orvik-390C", "agc=1", "agc=off gain=7");
    const std::string text = Content(saved);
    Write(saved,
          Replaced(text, text.substr(text.find("    \"username\"")), "    \"agc\": 1,\n    \"gain\": 5\n  }\n}\n"));
    const Outcome run = Run("restore " + saved + " Orvik-390C");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "gain                      ok          7 -> 5\n"
                       "agc                       ok          off -> 1\n");
    EXPECT_EQ(Get("agc"), "agc=1\n");
}

TEST_F(HostRestore, SetsNothingThatAModeLocksWhichCannotBeRead) {
    for (const char* each : {"Orvik-390C", "Cerix-MV7"}) {
        Prepare(each, "gain=5", "gain=7");
        const Outcome run = Run("restore " + saved + " " + model + " --fault failread:agc");
        EXPECT_EQ(run.code, 1);
        EXPECT_TRUE(
            std::regex_search(run.out, std::regex("\ngain +refused +Read[A-Za-z]+ at 0x46020000 failed: no answer "
                                                  "from the camera; asked for 5, the camera now holds 7\n")))
            << run.out;
        EXPECT_TRUE(Has(run.err, "2 of "));
        EXPECT_EQ(Get("gain"), "gain=7\n");
    }
}

TEST_F(HostRestore, SaysWhyAValueCannotBeReadBack) {
    for (const char* each : {"Orvik-390C", "Cerix-MV7"}) {
        Prepare(each, "sharpness=5", "sharpness=7");
        bool isWritten = false;
        const Outcome run = Restore([&](const Host::Access& access) {
            isWritten = isWritten || Writes(access, sharpness);
            if (isWritten && !access.write && access.address == sharpness) {
                throw std::runtime_error("the answer is lost");
            }
        });
        EXPECT_EQ(run.code, 1);
        EXPECT_TRUE(Has(run.out, "\nsharpness                 refused     the answer is lost; asked for 5\n"))
            << run.out;
        EXPECT_EQ(Get("sharpness"), "sharpness=5\n");
    }
}

TEST_F(HostRestore, NeverTakesEveryAddressFromACamera) {
    const std::string address = "persistentip=192.168.1.20,255.255.255.0,192.168.1.1";
    const std::string ways[] = {address + "\ndhcp=off", "persistentip=off\ndhcp=on"};
    const auto words = [](const std::string& lines) { return Replaced(lines, "\n", " "); };
    for (const char* each : {"Orvik-390C", "Cerix-MV7"}) {
        for (const auto& [first, changed] : {std::pair{ways[0], ways[1]}, {ways[1], ways[0]}}) {
            Prepare(each, words(first) + " username=bench packetsize=9000 packetdelay=7",
                    words(changed) + " username=x packetsize=1500 packetdelay=0");
            const auto check = [](const Host::Access& access) {
                if (Writes(access, 0x0014)) {
                    EXPECT_NE(access.data[0] & 3, 0); // persistent, DHCP
                }
            };
            const Outcome run = Restore(check, false, true);
            EXPECT_EQ(run.code, 0) << run.out << run.err;
            EXPECT_FALSE(Has(run.out, "left without")); // on the way
            EXPECT_EQ(Get("persistentip dhcp username packetsize packetdelay"),
                      first + "\nusername=bench\npacketsize=9000\npacketdelay=7\n");
        }
        Prepare(each, words(ways[0]), words(ways[1]));
        for (const char* plan : {" --dry-run", ""}) {
            EXPECT_EQ(Run("restore --network --only dhcp " + saved + " " + model + plan).out,
                      "dhcp                      skipped     the camera would be left without an address, because "
                      "persistentip is not restored\n");
        }
        // Another camera of the model does not get the address, and keeps its DHCP.
        Write(saved, Replaced(Content(saved), "-0042\"", "-0043\""));
        for (const char* plan : {" --dry-run", ""}) {
            const Outcome run = Run("restore --network " + saved + " " + model + plan);
            EXPECT_EQ(run.code, 0) << run.err;
            EXPECT_TRUE(Has(run.out, "\npersistentip              skipped     it is that of another camera, with the "
                                     "serial number "));
            EXPECT_TRUE(Has(run.out, "\ndhcp                      skipped     the camera would be left without an "
                                     "address, because persistentip is not restored\n"));
        }
        EXPECT_EQ(Get("persistentip dhcp"), ways[1] + "\n");
        // Nor does any camera get what is not an address.
        Write(saved, Replaced(Replaced(Content(saved), "-0043\"", "-0042\""), "168.1", "168.5"));
        const Outcome run = Run("restore --network " + saved + " " + model);
        EXPECT_EQ(run.code, 1);
        EXPECT_TRUE(Has(run.out, "\npersistentip              refused     the gateway 192.168.1.1 is not in the subnet "
                                 "192.168.5.0, mask 255.255.255.0; give 0.0.0.0 for none; "));
        EXPECT_EQ(Get("persistentip dhcp"), ways[1] + "\n");
    }
}

/// Its output cannot be written any more; the camera must get all settings of the file.
TEST_F(HostRestore, GoesOnWhenNobodyReadsOn) {
    Prepare("Cerix-MV7", "agc=2 sharpness=3", "agc=1 sharpness=9");
    {
        Running restore(QDV12_HOST, {"restore", "--trace", saved, "Cerix-MV7", "--state", state}, STDERR_FILENO);
        ASSERT_TRUE(restore.ReadUntil("write WriteRegister     0x46020000  0"));
        restore.StopReading();
        EXPECT_EQ(restore.End(), 0);
    }
    EXPECT_EQ(Get("agc sharpness"), "agc=2\nsharpness=3\n");
}

} // namespace Scenario
