// The cost of calls, depending on the number of registers in a list, on the framework itself. Writes the table of
// docs/performance.md to standard output, and its numbers to a file for the plot.

#include "BaseControlHelper.h"
#include "Benchmarks/Table.h"
#include "Feature.h"
#include "Tests/Support/FlatPort.h"
#include "Tests/Support/LogCapture.h"

#include <cstdio>
#include <cstdlib>
#include <deque>
#include <exception>
#include <stdexcept>

namespace Bench {

namespace {

constexpr std::size_t sizes[] = {10, 100, 1000, 10000};
constexpr const char* operations[] = {"cached read", "write with a cascade", "settings load", "property by name"};
/// A list of registers that a settings load makes stale, each with its feature, and as many properties. Eight registers
/// depend on the first one.
class Control final : public SDK4::Control::CBaseControlHelper {
public:
    explicit Control(std::size_t size) {
        loader = &Declare("loadsettings");
        for (std::size_t i = 0; i < size; ++i) {
            auto& added = Declare(NameOf("register", i));
            added.AddInvalidator("loadsettings");
            if (i >= 1 && i <= dependants) {
                added.AddInvalidator(first);
            }
            properties.push_back(&table.emplace_back(NameOf("property", i)));
        }
        last = NameOf("property", size - 1);
        middle = NameOf("register", size / 2);
    }

    void ReadMiddle() { features.GetValue<unsigned int>(middle); }
    void WriteFirst() { features.SetValue<unsigned int>(first, 5); }
    void LoadSettings() { loader->SetValue(1); }
    void FindLast() { GetUIntValue(last.c_str()); }

    /// Makes all values valid, or only those that depend on the first register.
    void ReadAll() {
        for (auto* each : all) {
            each->GetValue();
        }
    }
    void ReadDependants() {
        for (std::size_t i = 0; i <= dependants && i + 1 < all.size(); ++i) {
            all[i + 1]->GetValue();
        }
    }

    SDK4::CRegisterList registers;
    SDK4::CFeatureList features;
    Test::FlatPort port;

private:
    using Register = SDK4::CRegister<unsigned int, void>;
    static constexpr std::size_t dependants = 8;

    static std::string NameOf(const char* kind, std::size_t i) { return kind + std::to_string(i); }

    Register& Declare(const std::string& name) {
        auto* added = new Register(name, &registers, &port, address, SDK4::CacheNormal); // owned by the list
        features.AddEntry(new SDK4::CIntegerFeature<unsigned int>(name, &features, added, 0, 100));
        all.push_back(added);
        return *added;
    }

    static constexpr unsigned long address = 0x14010000;
    const std::string first = NameOf("register", 0);
    std::string middle, last;
    Register* loader;
    std::deque<Register*> all;
    std::deque<SDK4::Control::CPropertyParams> table;
};

std::string RowName(const char* operation, std::size_t size) { return operation + (", " + std::to_string(size)); }

void AddRows(Table& table, Control& control, std::size_t size) {
    table.Add({RowName(operations[0], size)}, [&] { control.ReadMiddle(); });
    table.Add(
        {RowName(operations[1], size)}, [&] { control.WriteFirst(); }, [&] { control.ReadDependants(); });
    table.Add(
        {RowName(operations[2], size)}, [&] { control.LoadSettings(); }, [&] { control.ReadAll(); });
    table.Add({RowName(operations[3], size)}, [&] { control.FindLast(); });
}

void PrintTable(const Table& table) {
    std::printf("| Operation |");
    for (const std::size_t size : sizes) {
        std::printf(" %zu |", size);
    }
    std::puts("\n|---|--:|--:|--:|--:|");
    for (const char* operation : operations) {
        std::printf("| %s |", operation);
        for (const std::size_t size : sizes) {
            std::printf(" %.0f |", table.At(RowName(operation, size)).nanoseconds);
        }
        std::puts("");
    }
}

void WriteNumbers(const Table& table, const char* path) {
    std::FILE* file = std::fopen(path, "w");
    if (file == nullptr) {
        throw std::runtime_error(std::string("cannot write ") + path);
    }
    for (const std::size_t size : sizes) {
        std::fprintf(file, "%zu", size);
        for (const char* operation : operations) {
            std::fprintf(file, " %.1f", table.At(RowName(operation, size)).nanoseconds);
        }
        std::fputc('\n', file);
    }
    std::fclose(file);
}

void Main(const char* numbers) {
    Test::LogCapture::Silence();
    std::deque<Control> controls;
    Table table([&] {
        std::uint64_t accesses = 0;
        for (const Control& control : controls) {
            accesses += control.port.Accesses();
        }
        return accesses;
    });
    for (const std::size_t size : sizes) {
        AddRows(table, controls.emplace_back(size), size);
    }
    table.Run();
    PrintTable(table);
    WriteNumbers(table, numbers);
}

} // namespace

} // namespace Bench

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FILE\n", argv[0]);
        return EXIT_FAILURE;
    }
    try {
        Bench::Main(argv[1]);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
