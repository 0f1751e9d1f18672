#include "FaultPlan.h"

#include <utility>

namespace platform
{

namespace
{

FaultPlan* current = nullptr;
Work work{false, false};

} // namespace

FaultPlan::FaultPlan(FaultKind kind, int callsBefore) : m_kind(kind), m_callsLeft(callsBefore)
{
    current = this;
}

FaultPlan::~FaultPlan()
{
    current = nullptr;
}

bool IsToFail(FaultKind kind)
{
    const bool counts = kind == FaultKind::Allocation ? work.isProgram : work.isCalled;
    if (!counts || current == nullptr || current->m_kind != kind || current->m_callsLeft < 0)
        return false;
    return current->m_callsLeft-- == 0;
}

bool IsProgramAtWork()
{
    return work.isProgram;
}

Worker::Worker(bool isProgram) : m_before(std::exchange(work, {isProgram, isProgram || work.isCalled})) {}

Worker::~Worker()
{
    work = m_before;
}

} // namespace platform
