#pragma once
// Runs a step while a modal loop waits for messages: the loop itself calls it.

#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

#include <windows.h>

// The steps run one after another, each by a message of the timer. One that answers false
// runs again: what it waits for isn't there yet.
class CModalSteps
{
public:
    class CStep
    {
    public:
        template <class T> CStep(T step)
        {
            if constexpr (std::is_same_v<decltype(step()), bool>)
                m_run = std::move(step);
            else
                m_run = [inner = std::move(step)] {
                    inner();
                    return true;
                };
        }
        [[nodiscard]] bool Run() const { return m_run(); }

    private:
        std::function<bool()> m_run;
    };

    explicit CModalSteps(std::vector<CStep> steps, UINT milliseconds = 10) : m_steps(std::move(steps))
    {
        Current() = this;
        m_timer = ::SetTimer(nullptr, 0, milliseconds, &CModalSteps::OnTimer);
    }
    CModalSteps(const CModalSteps&) = delete;
    CModalSteps& operator=(const CModalSteps&) = delete;
    ~CModalSteps()
    {
        ::KillTimer(nullptr, m_timer);
        Current() = m_before;
    }
    // How many steps have begun.
    [[nodiscard]] size_t Done() const { return m_done; }

private:
    static CModalSteps*& Current()
    {
        static CModalSteps* pCurrent = nullptr;
        return pCurrent;
    }
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        CModalSteps* const self = Current();
        if (!self || self->m_done >= self->m_steps.size())
            return;
        // While a step that opens another loop runs, the next one comes.
        const size_t step = self->m_done++;
        if (!self->m_steps[step].Run())
            self->m_done = step;
    }

    std::vector<CStep> m_steps;
    size_t m_done = 0;
    CModalSteps* m_before = Current();
    UINT_PTR m_timer = 0;
};
