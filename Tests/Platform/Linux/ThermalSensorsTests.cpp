#include "Platform/Linux/ThermalSensors.h"

#include "Tests/Support/TemporaryTree.h"

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <string_view>

namespace {

using Platform::ThermalState;
using TestSupport::TemporaryTree;

ThermalState stateOf(std::string_view layout)
{
    return Platform::thermalStateOfSensors(TemporaryTree(layout).root().path());
}

/// A zone that slows down at 85 degrees and shuts down at 100.
ThermalState stateAt(int millidegrees)
{
    return stateOf(fmt::format("class/thermal/thermal_zone0/\n"
                               "    mode text=\"enabled\\n\"\n"
                               "    temp text=\"{}\\n\"\n"
                               "    trip_point_0_type text=\"critical\\n\"\n"
                               "    trip_point_0_temp text=\"100000\\n\"\n"
                               "    trip_point_1_type text=\"active\\n\"\n"
                               "    trip_point_1_temp text=\"65000\\n\"\n"
                               "    trip_point_2_type text=\"passive\\n\"\n"
                               "    trip_point_2_temp text=\"85000\\n\"\n",
        millidegrees));
}

TEST(ThermalSensors, FourStatesFollowTheThresholdsOfAZone)
{
    EXPECT_EQ(stateAt(41'000), ThermalState::nominal);
    EXPECT_EQ(stateAt(74'999), ThermalState::nominal);
    EXPECT_EQ(stateAt(75'000), ThermalState::fair);
    EXPECT_EQ(stateAt(84'999), ThermalState::fair);
    EXPECT_EQ(stateAt(85'000), ThermalState::serious);
    EXPECT_EQ(stateAt(96'999), ThermalState::serious);
    EXPECT_EQ(stateAt(97'000), ThermalState::critical);
    EXPECT_EQ(stateAt(100'000), ThermalState::critical);
}

TEST(ThermalSensors, AMachineWithoutZonesIsUnknown)
{
    EXPECT_EQ(stateOf(""), ThermalState::unknown);
    EXPECT_EQ(stateOf("class/thermal/cooling_device0/type text=\"Processor\\n\""), ThermalState::unknown);
}

TEST(ThermalSensors, AbsurdTemperaturesCountForNothing)
{
    for (const int absurd : {0, -274'000, -1, 125'001, 2'000'000'000}) {
        EXPECT_EQ(stateAt(absurd), ThermalState::unknown) << absurd;
    }
}

TEST(ThermalSensors, AReadingAboveThePointOfShutdownCountsForNothing)
{
    EXPECT_EQ(stateAt(100'001), ThermalState::unknown);
}

TEST(ThermalSensors, ATemperatureThatCannotBeReadCountsForNothing)
{
    for (const auto* const temp :
        {"temp/", "temp text=\"\"", "temp text=\"warm\\n\"", "temp text=\"40000 C\\n\"", ""}) {
        EXPECT_EQ(stateOf(fmt::format("class/thermal/thermal_zone0/\n"
                                      "    {}\n"
                                      "    trip_point_0_type text=\"critical\\n\"\n"
                                      "    trip_point_0_temp text=\"100000\\n\"\n",
                      temp)),
            ThermalState::unknown)
            << temp;
    }
}

TEST(ThermalSensors, ADisabledZoneCountsForNothing)
{
    EXPECT_EQ(stateOf("class/thermal/thermal_zone0/\n"
                      "    mode text=\"disabled\\n\"\n"
                      "    temp text=\"99000\\n\"\n"
                      "    trip_point_0_type text=\"critical\\n\"\n"
                      "    trip_point_0_temp text=\"100000\\n\"\n"),
        ThermalState::unknown);
}

TEST(ThermalSensors, ThresholdsThatCannotBeAreNone)
{
    for (const int threshold : {20'800, 59'999, 125'001, -274'000, 0}) {
        EXPECT_EQ(stateOf(fmt::format("class/thermal/thermal_zone0/\n"
                                      "    temp text=\"16800\\n\"\n"
                                      "    trip_point_0_type text=\"critical\\n\"\n"
                                      "    trip_point_0_temp text=\"{}\\n\"\n",
                      threshold)),
            ThermalState::unknown)
            << threshold;
    }
}

TEST(ThermalSensors, ATripThatCannotBeReadLeavesTheOthers)
{
    EXPECT_EQ(stateOf("class/thermal/thermal_zone0/\n"
                      "    temp text=\"86000\\n\"\n"
                      "    trip_point_0_type text=\"critical\\n\"\n"
                      "    trip_point_0_temp/\n"
                      "    trip_point_1_type text=\"passive\\n\"\n"
                      "    trip_point_1_temp text=\"85000\\n\"\n"),
        ThermalState::serious);
}

TEST(ThermalSensors, WhatIsHotIsCriticalWithoutAMargin)
{
    EXPECT_EQ(stateOf("class/thermal/thermal_zone0/\n"
                      "    temp text=\"94000\\n\"\n"
                      "    trip_point_0_type text=\"hot\\n\"\n"
                      "    trip_point_0_temp text=\"95000\\n\"\n"),
        ThermalState::fair);
    EXPECT_EQ(stateOf("class/thermal/thermal_zone0/\n"
                      "    temp text=\"95000\\n\"\n"
                      "    trip_point_0_type text=\"hot\\n\"\n"
                      "    trip_point_0_temp text=\"95000\\n\"\n"),
        ThermalState::critical);
}

TEST(ThermalSensors, TheWarmestTrustworthySensorDecides)
{
    EXPECT_EQ(stateOf("class/thermal/thermal_zone0/\n"
                      "    temp text=\"27800\\n\"\n"
                      "    trip_point_0_type text=\"critical\\n\"\n"
                      "    trip_point_0_temp text=\"119000\\n\"\n"
                      "class/thermal/thermal_zone1/\n"
                      "    temp text=\"110000\\n\"\n"
                      "class/thermal/thermal_zone12/\n"
                      "    temp text=\"91000\\n\"\n"
                      "    trip_point_0_type text=\"passive\\n\"\n"
                      "    trip_point_0_temp text=\"90000\\n\"\n"),
        ThermalState::serious);
}

TEST(ThermalSensors, ADriverOfTheProcessorTellsItsOwnThresholds)
{
    EXPECT_EQ(stateOf("class/hwmon/hwmon3/\n"
                      "    name text=\"coretemp\\n\"\n"
                      "    temp2_input text=\"81000\\n\"\n"
                      "    temp2_max text=\"80000\\n\"\n"
                      "    temp2_crit text=\"100000\\n\"\n"
                      "    temp9_input text=\"30000\\n\"\n"),
        ThermalState::serious);
}

TEST(ThermalSensors, ADriverOfSomethingElseCountsForNothing)
{
    EXPECT_EQ(stateOf("class/hwmon/hwmon0/\n"
                      "    name text=\"nvme\\n\"\n"
                      "    temp1_input text=\"81000\\n\"\n"
                      "    temp1_max text=\"80000\\n\"\n"),
        ThermalState::unknown);
}

} // namespace
