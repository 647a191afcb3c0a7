#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

#include "kit/CheckedInteger.h"
#include "kit/Double.h"
#include "kit/Single.h"

namespace ondelis {

/// What has properties: a control or a panel.
class PropertyOwner {
public:
    PropertyOwner() = default;
    PropertyOwner(const PropertyOwner&) = delete;
    PropertyOwner& operator=(const PropertyOwner&) = delete;
    virtual ~PropertyOwner() = default;

    /// Called before a property is read or stored: a reference loads the panel.
    virtual void ensureLoaded() = 0;
    /// Called after a property has taken a new value, so that the view can show it.
    virtual void changed() = 0;
};

/// What reading a property of that stored type returns: a Single computes as a Double.
template <class Stored>
struct ReadAs {
    using type = Stored;
};
template <>
struct ReadAs<Single> {
    using type = Double;
};

/// A member of a control or a panel that code reads and stores like a variable. `Read` is named as a
/// parameter so that the operators of the number types are found for properties too.
template <class Stored, class Read = typename ReadAs<Stored>::type>
class Property {
public:
    explicit Property(PropertyOwner& owner) : owner_{owner} { }
    Property(const Property&) = delete;

    Property& operator=(Stored value)
    {
        owner_.ensureLoaded();
        if (assign(std::move(value)))
            owner_.changed();
        return *this;
    }
    Property& operator=(const Property& other)
    {
        *this = Stored{static_cast<const Stored&>(other.get())};
        return *this;
    }

    [[nodiscard]] const Stored& get() const
    {
        owner_.ensureLoaded();
        return value_;
    }
    operator Read() const { return get(); } // NOLINT(google-explicit-constructor): reads like a variable
    operator Double() const // NOLINT(google-explicit-constructor)
        requires(std::same_as<Read, Integer>)
    {
        return get();
    }
    operator std::string_view() const // NOLINT(google-explicit-constructor)
        requires(std::same_as<Read, std::string>)
    {
        return get();
    }
    friend bool operator==(const Property& property, std::string_view text) requires(std::same_as<Read, std::string>)
    {
        return property.get() == text;
    }

    /// Stores a design value: raises no event, reports nothing to the view.
    void reset(Stored value) { value_ = std::move(value); }

protected:
    /// Stores the value; returns whether it is a new one.
    template <class Value>
    bool assign(Value&& value)
    {
        if (value_ == value)
            return false;
        value_ = std::forward<Value>(value);
        return true;
    }

    PropertyOwner& owner_;

private:
    Stored value_{};
};

/// A property whose store does more than keep the value: it checks it, or raises an event.
template <class Owner, class Stored, void (Owner::*Store)(Stored)>
class ActiveProperty : public Property<Stored> {
public:
    using Property<Stored>::Property;

    ActiveProperty& operator=(Stored value)
    {
        this->owner_.ensureLoaded();
        (static_cast<Owner&>(this->owner_).*Store)(std::move(value));
        return *this;
    }
    ActiveProperty& operator=(const ActiveProperty& other)
    {
        *this = Stored{other.get()};
        return *this;
    }

private:
    friend Owner;
};

} // namespace ondelis
