#pragma once
// A vector whose access by index is checked. An index outside calls the run-time's
// invalid-parameter handler, if one is installed, and then ends the process at once with
// code 0xC0000417: no result could be right, and no exception crosses to the host.

#include <utility>
#include <vector>

[[noreturn]] void AfxInvalidParameter() noexcept;

template <class T> class CCheckedVector : public std::vector<T>
{
    using Base = std::vector<T>;

public:
    using Base::Base;
    using typename Base::const_reference;
    using typename Base::reference;
    using typename Base::size_type;

    [[nodiscard]] reference operator[](size_type index)
    {
        Check(index);
        return Base::operator[](index);
    }
    [[nodiscard]] const_reference operator[](size_type index) const
    {
        Check(index);
        return Base::operator[](index);
    }
    [[nodiscard]] reference at(size_type index) { return (*this)[index]; }
    [[nodiscard]] const_reference at(size_type index) const { return (*this)[index]; }
    [[nodiscard]] reference front() { return (*this)[0]; }
    [[nodiscard]] const_reference front() const { return (*this)[0]; }
    [[nodiscard]] reference back() { return (*this)[Base::size() - 1]; }
    [[nodiscard]] const_reference back() const { return (*this)[Base::size() - 1]; }
    void pop_back()
    {
        Check(0);
        Base::pop_back();
    }

    [[nodiscard]] bool IsInside(int index) const noexcept
    {
        return index >= 0 && std::cmp_less(index, Base::size());
    }
    // False, and nothing is removed, where there is no such element.
    bool EraseAt(int index)
    {
        if (!IsInside(index))
            return false;
        Base::erase(Base::begin() + index);
        return true;
    }

private:
    void Check(size_type index) const
    {
        if (index >= Base::size())
            AfxInvalidParameter();
    }
};
