#pragma once
// Finds the object of a handle. Owners enter themselves; for a handle without an owner a
// temporary object is made for the calling thread, which lives until DeleteTemporaries. The table is a
// fixed array of chains through the objects themselves: entering an owner allocates nothing, and objects
// of static storage may leave it at any time of the module's end.
//
// TObject has a member HandleTableLink<TObject> m_Link and is a friend.

#include <windows.h>

#include <cstddef>
#include <cstdint>

template <class TObject> struct HandleTableLink {
    TObject* next = nullptr;
    void* handle = nullptr; // null: not in the table
    DWORD thread = 0;       // whose temporary object it is; 0: an owner
};

template <class TObject> class HandleTable
{
public:
    void Enter(TObject* object, void* handle) noexcept
    {
        const Lock lock(m_Lock);
        EnterLocked(object, handle, 0);
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
        const DWORD thread = ::GetCurrentThreadId();
        TClass* temporary = nullptr;
        for (TObject* object = Chain(handle); object; object = object->m_Link.next) {
            const HandleTableLink<TObject>& link = object->m_Link;
            if (link.handle != handle || (link.thread != 0 && link.thread != thread))
                continue;
            TClass* found = dynamic_cast<TClass*>(object);
            if (found && link.thread == 0)
                return found;
            if (found)
                temporary = found;
        }
        if (temporary)
            return temporary;
        TClass* made = make();
        EnterLocked(made, handle, thread);
        return made;
    }

    // Those of one thread, or all for 0. They leave the table before they are destroyed, so a
    // destructor sees by its empty link that the handle isn't its own.
    void DeleteTemporaries(DWORD thread) noexcept
    {
        const Lock lock(m_Lock);
        for (TObject*& chain : m_Chains) {
            for (TObject** place = &chain; *place;) {
                TObject* object = *place;
                const DWORD owner = object->m_Link.thread;
                if (owner == 0 || (thread != 0 && owner != thread)) {
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
        explicit Lock(SRWLOCK& lock) noexcept : m_Held(lock) { ::AcquireSRWLockExclusive(&m_Held); }
        ~Lock() { ::ReleaseSRWLockExclusive(&m_Held); }
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

    void EnterLocked(TObject* object, void* handle, DWORD thread) noexcept
    {
        TObject*& chain = Chain(handle);
        object->m_Link = {chain, handle, thread};
        chain = object;
    }

    SRWLOCK m_Lock = SRWLOCK_INIT;
    TObject* m_Chains[ChainCount] = {};
};
