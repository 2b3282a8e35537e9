#include "Tests/KarvelloUI/Screens/Insights/ScreenProgram.h"

int main(int argc, char** argv)
{
    return InsightScreenTests::runScreenTests(argc, argv);
}
