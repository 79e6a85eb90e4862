#pragma once

namespace zeplet
{
namespace test
{

/** A controller that is ready to run a program, for tests that name no other. */
constexpr const char *readyScenario = R"({
    "robot": {"power": "on", "level": 3},
    "io": {"signals": [{"name": "di_1", "type": "DI"}, {"name": "di_2", "type": "DI"},
                       {"name": "di_3", "type": "DI"}, {"name": "di_4", "type": "DI"},
                       {"name": "do_1", "type": "DO"}, {"name": "do_2", "type": "DO"},
                       {"name": "do_3", "type": "DO"}, {"name": "do_4", "type": "DO"}]},
    "registers": [{"name": "R_1", "value": ["0"]}]
})";

} // namespace test
} // namespace zeplet
