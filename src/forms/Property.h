#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

#include "kit/Double.h"
#include "kit/Single.h"
#include "kit/Whole.h"

namespace ondelis {

/// What has properties: a control or a panel.
class Element {
public:
    Element() = default;
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;
    virtual ~Element() = default;

    /// Called before a property is read or stored: a reference loads the panel.
    virtual void touch() = 0;
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
    explicit Property(Element& owner) : owner_{owner} { }
    Property(const Property&) = delete;

    Property& operator=(Stored value)
    {
        owner_.touch();
        if (keep(std::move(value)))
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
        owner_.touch();
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

    /// Stores a design value: raises no event, tells no view.
    void reset(Stored value) { value_ = std::move(value); }

protected:
    /// Takes the value; returns whether it is a new one.
    template <class Value>
    bool keep(Value&& value)
    {
        if (value_ == value)
            return false;
        value_ = std::forward<Value>(value);
        return true;
    }

    Element& owner_;

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
        this->owner_.touch();
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
