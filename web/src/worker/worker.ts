// SPDX-License-Identifier: MIT
import { expose } from "comlink";

import { Session } from "./session.ts";

expose(new Session());
