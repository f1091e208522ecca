"""A program under test that meets an error, a kill or a stop at one of its system calls."""


def environment(shim, **fault):
    """The variables for it: at=3, do="ENOSPC", under=folder ... as support/fault_shim.cpp names them."""
    chosen = {f"FAULT_{name.upper()}": str(value) for name, value in fault.items()}
    # A build with sanitizers wants to be loaded first, and looks for leaks at an end that may not come.
    return {"LD_PRELOAD": shim, "ASAN_OPTIONS": "verify_asan_link_order=0:detect_leaks=0", **chosen}
