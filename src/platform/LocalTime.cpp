#include "environment/LocalTime.h"

bool LocalTimeOf(std::time_t time, std::tm& local)
{
    return localtime_r(&time, &local) != nullptr;
}
