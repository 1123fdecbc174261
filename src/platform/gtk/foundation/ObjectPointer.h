#pragma once

#include <glib-object.h>
#include <memory>

namespace gtk {

struct ObjectRelease {
    void operator()(gpointer object) const { g_object_unref(object); }
};

// A reference of our own to an object of the C interfaces.
template <class T> using ObjectPointer = std::unique_ptr<T, ObjectRelease>;

// Shares an object that somebody else owns, or takes over one that nobody owns yet.
template <class T> ObjectPointer<T> retain(T* object)
{
    return ObjectPointer<T>(static_cast<T*>(g_object_ref_sink(object)));
}

} // namespace gtk
