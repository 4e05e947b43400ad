#include "Format.h"
#include "Logging.h"
#include "Plugin.h"
#include "Session.h"
#include "Tour/Tour.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <string>

namespace {

using namespace Host;

int ListModels(const Host::Plugin& plugin) {
    for (const Host::Model& model : plugin.Models()) {
        std::cout << Host::Pad(model.name, 16) << model.key << '\n';
    }
    return AllWell;
}

int RunTour(const Host::Plugin& plugin, const std::string& model) {
    Host::Session session(plugin, model);
    return Host::Tour(session, std::cout).Run() ? AllWell : Refused;
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app("Drives cameras through the plug-in libqdv12ctrl.so, on simulated cameras.", "qdv12host");
    app.require_subcommand(1);
    app.fallthrough(); // common options may stand behind the command

    std::string path = Host::PluginBesideProgram();
    app.add_option("--plugin", path, "The plug-in to load (default: libqdv12ctrl.so beside this program)")
        ->type_name("PATH");
    std::string level = "off";
    app.add_option("--log", level, "What log4cxx writes to standard error")
        ->transform(CLI::IsMember({"off", "error", "warn", "info", "debug"}, CLI::ignore_case))
        ->capture_default_str()
        ->type_name("LEVEL");

    const auto* const models = app.add_subcommand("models", "List the models that the plug-in serves");
    auto* const tour = app.add_subcommand("tour", "Walk through every interface of a camera, with its port accesses");
    std::string model;
    tour->add_option("MODEL", model, "A model that the plug-in serves")->required()->type_name("");

    try {
        app.parse(argc, argv);
        Host::ConfigureLogging(level);
        const Host::Plugin plugin(path);
        return models->parsed() ? ListModels(plugin) : RunTour(plugin, model);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? AllWell : WrongUsage;
    } catch (const Host::OpenError& error) {
        std::cerr << "qdv12host: " << error.what() << '\n';
        return NotOpened;
    } catch (const SDK4::X4Error& error) {
        std::cerr << "qdv12host: " << SDK4::ErrorName(error.code) << " (" << error.code << ")\n";
        return Refused;
    } catch (const std::exception& error) {
        std::cerr << "qdv12host: " << error.what() << '\n';
        return Refused;
    }
}
