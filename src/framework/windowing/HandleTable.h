#pragma once
// Finds the object of a handle. Owners enter themselves; for a handle without an owner a
// temporary object is made that lives until DeleteTemporaries. The table is a fixed array of
// chains through the objects themselves: entering an owner allocates nothing, and objects of
// static storage may leave it at any time of the module's end.
//
// TObject has a member HandleTableLink<TObject> m_Link and is a friend.

#include <windows.h>

#include <cstddef>
#include <cstdint>

template <class TObject> struct HandleTableLink {
    TObject* next = nullptr;
    void* handle = nullptr; // null: not in the table
    bool temporary = false;
};

template <class TObject> class HandleTable
{
public:
    void Enter(TObject* object, void* handle) noexcept
    {
        const Lock lock(m_Lock);
        EnterLocked(object, handle, false);
    }

    void Leave(TObject* object) noexcept
    {
        const Lock lock(m_Lock);
        HandleTableLink<TObject>& link = object->m_Link;
        if (!link.handle)
            return;
        for (TObject** place = &Chain(link.handle); *place; place = &(*place)->m_Link.next) {
            if (*place == object) {
                *place = link.next;
                break;
            }
        }
        link = {};
    }

    // The owner entered last whose class is TClass or derives from it, else the temporary
    // object, made by make() if need be. Null for a null handle.
    template <class TClass, class TMake> TClass* Find(void* handle, TMake make)
    {
        if (!handle)
            return nullptr;
        const Lock lock(m_Lock);
        TClass* temporary = nullptr;
        for (TObject* object = Chain(handle); object; object = object->m_Link.next) {
            if (object->m_Link.handle != handle)
                continue;
            TClass* found = dynamic_cast<TClass*>(object);
            if (found && !object->m_Link.temporary)
                return found;
            if (found && !temporary)
                temporary = found;
        }
        if (temporary)
            return temporary;
        TClass* made = make();
        EnterLocked(made, handle, true);
        return made;
    }

    // The objects' destructors must not touch their handles nor the table.
    void DeleteTemporaries() noexcept
    {
        const Lock lock(m_Lock);
        for (TObject*& chain : m_Chains) {
            for (TObject** place = &chain; *place;) {
                TObject* object = *place;
                if (!object->m_Link.temporary) {
                    place = &object->m_Link.next;
                    continue;
                }
                *place = object->m_Link.next;
                object->m_Link = {};
                delete object;
            }
        }
    }

private:
    class Lock
    {
    public:
        explicit Lock(SRWLOCK& lock) noexcept : m_Held(lock) { AcquireSRWLockExclusive(&m_Held); }
        ~Lock() { ReleaseSRWLockExclusive(&m_Held); }
        Lock(const Lock&) = delete;
        Lock& operator=(const Lock&) = delete;

    private:
        SRWLOCK& m_Held;
    };

    static constexpr std::size_t ChainCount = 256;

    TObject*& Chain(void* handle) noexcept
    {
        const auto bits = reinterpret_cast<std::uintptr_t>(handle);
        return m_Chains[(bits ^ (bits >> 8)) % ChainCount];
    }

    void EnterLocked(TObject* object, void* handle, bool temporary) noexcept
    {
        TObject*& chain = Chain(handle);
        object->m_Link = {chain, handle, temporary};
        chain = object;
    }

    SRWLOCK m_Lock = SRWLOCK_INIT;
    TObject* m_Chains[ChainCount] = {};
};
