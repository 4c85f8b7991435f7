#pragma once

// What a hover registration calls as the pointer crosses its rectangle. The registry knows only
// this, not the controls that answer it.
class HoverOwner {
public:
    virtual void mouseEntered() = 0;
    virtual void mouseExited() = 0;

protected:
    ~HoverOwner() = default;
};
