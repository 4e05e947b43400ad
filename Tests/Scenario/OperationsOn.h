#pragma once

#include "Tests/Scenario/ScenarioFixture.h"

#include "Tests/Operations/Operations.h"

#include <exception>
#include <string>
#include <string_view>
#include <vector>

namespace Scenario {

/// All operations of the model's family.
inline std::vector<const ::Test::Operation*> OperationsOf(std::string_view model) {
    std::vector<const ::Test::Operation*> rows;
    for (const ::Test::Operation& row : ::Test::Operations()) {
        if (row.state.IsM2VX() != model.starts_with("Orvik")) {
            rows.push_back(&row);
        }
    }
    return rows;
}

/// The result of an operation, the name of its error code, or the port's message.
inline std::string OutcomeOf(const ::Test::Operation& row, IDynamicObject& camera) {
    try {
        if (row.state.before) {
            (void)::Test::Outcome(row.state.before, camera);
        }
        return ::Test::Outcome(row.call, camera);
    } catch (const std::exception& error) {
        return error.what();
    }
}

} // namespace Scenario
