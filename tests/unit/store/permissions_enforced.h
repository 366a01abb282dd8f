#pragma once
// While it lives, the calling thread passes over no file permission: the powers by which the
// superuser writes into any folder are taken out of its effective set, and given back at the end.
// A read-only folder then refuses new files whoever runs the test, root on a build machine too.
// For any other user there is nothing to take, and the permissions hold anyway.

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace lw::store::testing {

class PermissionsEnforced {
public:
    PermissionsEnforced() {
        header_.version = _LINUX_CAPABILITY_VERSION_3;
        header_.pid = 0;
        if (syscall(SYS_capget, &header_, saved_) != 0) return;
        __user_cap_data_struct lowered[2] = {saved_[0], saved_[1]};
        for (int power : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH}) {
            lowered[CAP_TO_INDEX(power)].effective &= ~CAP_TO_MASK(power);
        }
        active_ = syscall(SYS_capset, &header_, lowered) == 0;
    }
    ~PermissionsEnforced() {
        if (active_) syscall(SYS_capset, &header_, saved_);
    }
    PermissionsEnforced(const PermissionsEnforced&) = delete;
    PermissionsEnforced& operator=(const PermissionsEnforced&) = delete;

    // False when the system would not tell or change the thread's powers.
    bool active() const { return active_; }

private:
    __user_cap_header_struct header_{};
    __user_cap_data_struct saved_[2]{};
    bool active_ = false;
};

}  // namespace lw::store::testing
